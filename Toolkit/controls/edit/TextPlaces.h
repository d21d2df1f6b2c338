// Where the caret may stand in a text as it is seen: the letters of some scripts are written from right to left.
//
// x counts from the text's left edge, positions count bytes. Making one lays the text out; it keeps no text.
#pragma once

#include "Toolkit/controls/edit/TextStops.h"
#include "Toolkit/graphics/TextEngine.h"

namespace toolkit
{

class TOOLKIT_API TextPlaces
{
public:
    explicit TextPlaces(std::string_view text);

    // The caret stands where the reader comes to the character behind it; at the end, where the last one is left.
    int CaretX(std::size_t stop) const;
    std::size_t StopAt(int x) const;      // the one whose caret is nearest; of two as near the later one
    std::size_t CharacterAt(int x) const; // where the nearest one begins
    // The next stop that is seen on that side, the same one where there is none. Each is on the way from end to end.
    std::size_t StopLeftOf(std::size_t stop) const { return Beside(stop, -1); }
    std::size_t StopRightOf(std::size_t stop) const { return Beside(stop, 1); }
    bool ReadsLeftwards() const { return m_carets.back() < m_carets.front(); } // as a whole

    // What the span covers, from left to right; neighbours are one part.
    std::vector<CharacterPlace> Parts(TextSpan span) const;

private:
    std::size_t IndexOf(std::size_t stop) const;
    std::size_t Beside(std::size_t stop, int step) const;

    std::vector<std::size_t> m_stops;     // all, the text's end too
    std::vector<CharacterPlace> m_places; // of the characters between them
    std::vector<int> m_carets;            // at each stop
};

} // namespace toolkit
