#include "QtDesktop/text/TextParts.h"

#include "Toolkit/base/Text.h"

#include <QFontMetricsF>
#include <algorithm>

namespace qtdesktop
{
namespace
{

constexpr char32_t kReplacement = 0xFFFD;

// Control characters and ends of lines have no picture of their own; invalid bytes come above all code points.
bool HasPicture(char32_t c)
{
    const bool bControl = c < U' ' || (c >= 0x7F && c < 0xA0);
    return !bControl && c != 0x2028 && c != 0x2029 && c < 0x110000;
}

} // namespace

char32_t NextShown(std::string_view& text)
{
    const toolkit::CodePoint next = toolkit::DecodeUtf8(text);
    text.remove_prefix(static_cast<std::size_t>(next.bytes));
    return HasPicture(next.value) ? next.value : kReplacement;
}

QString ShownText(std::string_view text)
{
    QString shown;
    while (!text.empty()) {
        const char32_t c = NextShown(text);
        shown += QString::fromUcs4(&c, 1);
    }
    return shown;
}

int BaselineOf(const QFont& font)
{
    return qRound(QFontMetricsF(font).ascent());
}

int ToWidth(long long sixtyFourths)
{
    constexpr long long kWidest = 1 << 24;
    return static_cast<int>(std::min((sixtyFourths + 63) / 64, kWidest));
}

} // namespace qtdesktop
