// Text that Qt has to lay out: right to left, combining marks, joined letters, colour pictures.
#pragma once

#include "Toolkit/graphics/TextEngine.h"

#include <QFont>
#include <QImage>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class QPainter;

namespace qtdesktop
{

// All texts of one font. Laying out and drawing costs some 20 microseconds, so labels are remembered as pictures.
class LayoutText
{
public:
    explicit LayoutText(const QFont& font);

    int Measure(std::string_view text); // pixels, rounded up
    std::vector<toolkit::CharacterPlace> Places(std::string_view text,
                                                std::span<const std::size_t> starts) const; // in pixels
    void Draw(toolkit::Surface& target, const CRect& clip, CPoint at, std::string_view text, COLORREF color);

private:
    struct Picture
    {
        COLORREF color;
        QImage image;
    };
    struct Label
    {
        int width = 0;
        std::vector<Picture> pictures; // in each colour that it was drawn in
    };

    Label& FindLabel(std::string_view text);
    const QImage& FindPicture(std::string_view text, COLORREF color);
    QImage Render(std::string_view text, int nWidth, COLORREF color) const;

    const QFont m_font;
    const int m_nBaseline; // pixels below the line's top
    const int m_nRoom;     // around a picture, for what reaches out of its line
    std::unordered_map<std::string, Label> m_labels;
    std::size_t m_nPictureBytes = 0;
};

} // namespace qtdesktop
