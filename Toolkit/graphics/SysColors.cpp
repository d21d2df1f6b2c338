#include "Toolkit/graphics/SysColors.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace
{

constexpr int kWhole = 255;
constexpr double kTextContrast = 4.5;
constexpr COLORREF kBlack = RGB(0, 0, 0), kWhite = RGB(255, 255, 255);

// As far from the ground towards texts.
constexpr int kLightLine = 12, kFace = 26, kShadow = 95, kGrayText = 146, kDarkLine = 150;

toolkit::ColorScheme s_asked, s_scheme; // as it was said, and as it can be read
bool s_bDark = false;
COLORREF s_grayText = RGB(109, 109, 109); // that shade of the scheme's, made readable

COLORREF Mix(COLORREF from, COLORREF to, int nPart)
{
    const auto channel = [nPart](int a, int b) { return a + (b - a) * nPart / kWhole; };
    return RGB(channel(GetRValue(from), GetRValue(to)), channel(GetGValue(from), GetGValue(to)),
               channel(GetBValue(from), GetBValue(to)));
}

// As the eye sees it: 0 black, 1 white.
double Luminance(COLORREF color)
{
    const auto linear = [](int channel) {
        const double c = channel / 255.0;
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(GetRValue(color)) + 0.7152 * linear(GetGValue(color)) + 0.0722 * linear(GetBValue(color));
}

// Light lines on a dark ground are seen more than dark ones on a light ground.
COLORREF LineColor(int nShade)
{
    return toolkit::ShadeColor(s_bDark ? nShade * 5 / 8 : nShade);
}

} // namespace

COLORREF GetSysColor(int nIndex)
{
    switch (nIndex) {
    case COLOR_WINDOW:
    case COLOR_BTNHIGHLIGHT:
        return s_scheme.window;
    case COLOR_HIGHLIGHT:
        return s_scheme.highlight;
    case COLOR_HIGHLIGHTTEXT:
        return s_scheme.highlightText;
    case COLOR_BTNFACE:
        return toolkit::ShadeColor(kFace);
    case COLOR_BTNSHADOW:
        return LineColor(kShadow);
    case COLOR_3DDKSHADOW:
        return LineColor(kDarkLine);
    case COLOR_3DLIGHT:
        return toolkit::ShadeColor(kLightLine);
    case COLOR_GRAYTEXT:
        return s_grayText;
    default:
        return s_scheme.text;
    }
}

bool toolkit::SetColorScheme(const ColorScheme& scheme)
{
    if (std::exchange(s_asked, scheme) == scheme)
        return false;
    s_scheme = scheme;
    s_scheme.text = Readable(scheme.text, Mix(scheme.window, scheme.text, kFace));
    s_scheme.highlight = Readable(scheme.highlight, scheme.highlightText);
    s_bDark = Luminance(s_scheme.text) > Luminance(s_scheme.window);
    s_grayText = Readable(Readable(ShadeColor(kGrayText), ShadeColor(kLightLine)), s_scheme.window);
    return true;
}

bool toolkit::IsDark()
{
    return s_bDark;
}

COLORREF toolkit::ShadeColor(int nShade)
{
    return Mix(s_scheme.window, s_scheme.text, nShade);
}

double toolkit::Contrast(COLORREF a, COLORREF b)
{
    const auto [dark, light] = std::minmax({Luminance(a), Luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

COLORREF toolkit::Readable(COLORREF color, COLORREF ground)
{
    const COLORREF end = Contrast(ground, kBlack) > Contrast(ground, kWhite) ? kBlack : kWhite;
    COLORREF moved = color;
    for (int nPart = 1; nPart <= kWhole && Contrast(moved, ground) < kTextContrast; ++nPart)
        moved = Mix(color, end, nPart);
    return moved;
}
