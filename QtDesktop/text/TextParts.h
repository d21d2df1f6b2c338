// What both ways of drawing text agree on.
#pragma once

#include "Toolkit/base/Types.h"

#include <QFont>
#include <QString>
#include <string_view>

namespace qtdesktop
{

// Takes the first code point off a text that is not empty and tells what is shown for it: for a control character,
// and for each byte that is no valid UTF-8, the replacement character.
char32_t NextShown(std::string_view& text);
QString ShownText(std::string_view text);

int BaselineOf(const QFont& font);   // pixels from a line's top to where its letters stand
int ToWidth(long long sixtyFourths); // whole pixels, rounded up; what no window is wide enough for is cut off

} // namespace qtdesktop
