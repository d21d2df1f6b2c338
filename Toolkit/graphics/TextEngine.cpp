#include "Toolkit/graphics/TextEngine.h"

#include "Toolkit/base/Text.h"
#include "Toolkit/graphics/BuiltinFont.h"

namespace
{

toolkit::TextEngine* s_pInstalled = nullptr;

// Where a text may be cut: at its start and before each code point that is no combining mark.
std::vector<std::size_t> FindCuts(std::string_view text)
{
    std::vector<std::size_t> cuts{0};
    for (std::size_t at = 0; at < text.size();) {
        const toolkit::CodePoint c = toolkit::DecodeUtf8(text.substr(at));
        if (at > 0 && !toolkit::IsCombiningMark(c.value))
            cuts.push_back(at);
        at += static_cast<std::size_t>(c.bytes);
    }
    return cuts;
}

} // namespace

std::vector<toolkit::CharacterPlace> toolkit::TextEngine::Places(std::string_view text,
                                                                 std::span<const std::size_t> starts, FontStyle style)
{
    std::vector<CharacterPlace> places;
    for (std::size_t i = 0; i < starts.size(); ++i) {
        const int from = places.empty() ? 0 : places.back().trailing;
        const std::size_t end = i + 1 < starts.size() ? starts[i + 1] : text.size();
        places.push_back({from, Measure(text.substr(0, end), style)});
    }
    return places;
}

bool toolkit::IsCombiningMark(char32_t c)
{
    struct Range
    {
        char32_t first, last;
    };
    static constexpr Range kMarks[] = {
        {0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05BD}, {0x064B, 0x065F},   {0x1AB0, 0x1AFF},
        {0x1DC0, 0x1DFF}, {0x200B, 0x200F}, {0x20D0, 0x20FF}, {0x302A, 0x302F},   {0x3099, 0x309A},
        {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}, {0xFEFF, 0xFEFF}, {0x1F3FB, 0x1F3FF}, {0xE0100, 0xE01EF},
    };
    if (c < kMarks[0].first)
        return false;
    return std::any_of(std::begin(kMarks), std::end(kMarks),
                       [c](const Range& range) { return c >= range.first && c <= range.last; });
}

toolkit::TextEngine& toolkit::CurrentTextEngine()
{
    return s_pInstalled ? *s_pInstalled : BuiltinTextEngine();
}

void toolkit::InstallTextEngine(TextEngine* pEngine)
{
    s_pInstalled = pEngine;
}

toolkit::TextEngine& toolkit::BuiltinTextEngine()
{
    static BuiltinFont font;
    return font;
}

std::string toolkit::Ellipsize(std::string_view text, int width, FontStyle style)
{
    constexpr std::string_view kDots = "...";
    TextEngine& engine = CurrentTextEngine();
    if (engine.Measure(text, style) <= width)
        return std::string(text);

    const auto cutAt = [&](std::size_t cut) { return std::string(text.substr(0, cut)).append(kDots); };
    const auto fits = [&](std::size_t cut) { return engine.Measure(cutAt(cut), style) <= width; };
    const std::vector<std::size_t> cuts = FindCuts(text);
    const auto firstTooWide = std::partition_point(cuts.begin() + 1, cuts.end(), fits);
    return cutAt(*(firstTooWide - 1));
}
