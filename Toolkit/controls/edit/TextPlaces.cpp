#include "Toolkit/controls/edit/TextPlaces.h"

#include <algorithm>
#include <cstdlib>

namespace toolkit
{

namespace
{

std::vector<std::size_t> AllStops(std::string_view text)
{
    std::vector<std::size_t> stops{0};
    while (stops.back() < text.size())
        stops.push_back(NextStop(text, stops.back()));
    return stops;
}

} // namespace

TextPlaces::TextPlaces(std::string_view text) : m_stops(AllStops(text))
{
    const std::span starts(m_stops.data(), m_stops.size() - 1);
    m_places = CurrentTextEngine().Places(text, starts, FontStyle::Regular);
    for (const CharacterPlace& place : m_places)
        m_carets.push_back(place.leading);
    m_carets.push_back(m_places.empty() ? 0 : m_places.back().trailing);
}

std::size_t TextPlaces::IndexOf(std::size_t stop) const
{
    return static_cast<std::size_t>(std::ranges::lower_bound(m_stops, stop) - m_stops.begin());
}

int TextPlaces::CaretX(std::size_t stop) const
{
    return m_carets[IndexOf(stop)];
}

std::size_t TextPlaces::StopAt(int x) const
{
    const auto nearest = std::min_element(m_carets.rbegin(), m_carets.rend(),
                                          [x](int one, int other) { return std::abs(one - x) < std::abs(other - x); });
    return m_stops[static_cast<std::size_t>(m_carets.rend() - nearest) - 1];
}

std::size_t TextPlaces::CharacterAt(int x) const
{
    const auto distance = [x](const CharacterPlace& place) {
        return std::max({place.Left() - x, x - place.Right() + 1, 0});
    };
    return m_stops[static_cast<std::size_t>(std::ranges::min_element(m_places, {}, distance) - m_places.begin())];
}

// Stops that are seen at one place follow each other as they are read.
std::size_t TextPlaces::Beside(std::size_t stop, int step) const
{
    const int order = ReadsLeftwards() ? -step : step;
    const auto key = [&](std::size_t i) { return std::pair(step * m_carets[i], order * static_cast<int>(i)); };
    const std::size_t from = IndexOf(stop);
    std::size_t next = from;
    for (std::size_t i = 0; i < m_stops.size(); ++i)
        if (key(i) > key(from) && (next == from || key(i) < key(next)))
            next = i;
    return m_stops[next];
}

std::vector<CharacterPlace> TextPlaces::Parts(TextSpan span) const
{
    const auto place = [this](std::size_t stop) {
        return m_places.begin() + static_cast<std::ptrdiff_t>(IndexOf(stop));
    };
    std::vector<CharacterPlace> covered(place(span.first), place(span.end)), parts;
    std::ranges::sort(covered, {}, &CharacterPlace::Left);
    for (const CharacterPlace& one : covered) {
        if (parts.empty() || one.Left() > parts.back().trailing)
            parts.push_back({one.Left(), one.Right()});
        else
            parts.back().trailing = std::max(parts.back().trailing, one.Right());
    }
    return parts;
}

} // namespace toolkit
