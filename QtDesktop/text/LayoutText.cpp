#include "QtDesktop/text/LayoutText.h"

#include "QtDesktop/text/TextLine.h"
#include "QtDesktop/text/TextParts.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace qtdesktop
{
namespace
{

constexpr std::size_t kMaxLabels = 4096;
constexpr std::size_t kMaxPictureBytes = 4 << 20;
constexpr std::size_t kLongestLabel = 256; // bytes; a longer text is laid out each time

} // namespace

LayoutText::LayoutText(const QFont& font)
    : m_font(font), m_nBaseline(BaselineOf(font)), m_nRoom(static_cast<int>(QFontMetricsF(font).height()) / 2)
{}

int LayoutText::Measure(std::string_view text)
{
    return text.size() > kLongestLabel ? TextLine(text, m_font).Width() : FindLabel(text).width;
}

std::vector<toolkit::CharacterPlace> LayoutText::Places(std::string_view text,
                                                        std::span<const std::size_t> starts) const
{
    return TextLine(text, m_font).Places(text, starts);
}

void LayoutText::Draw(toolkit::Surface& target, const CRect& clip, CPoint at, std::string_view text, COLORREF color)
{
    QImage picture(reinterpret_cast<uchar*>(target.Row(0)), target.Width(), target.Height(),
                   target.Width() * static_cast<int>(sizeof(toolkit::Pixel)), QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&picture);
    painter.setClipRect(clip.left, clip.top, clip.Width(), clip.Height());
    if (text.size() > kLongestLabel)
        TextLine(text, m_font).Draw(painter, at + CPoint(0, m_nBaseline), color);
    else
        painter.drawImage(at.x - m_nRoom, at.y - m_nRoom, FindPicture(text, color));
}

const QImage& LayoutText::FindPicture(std::string_view text, COLORREF color)
{
    Label& label = FindLabel(text);
    const auto found = std::ranges::find(label.pictures, color, &Picture::color);
    if (found != label.pictures.end())
        return found->image;
    const Picture& made = label.pictures.emplace_back(Picture{color, Render(text, label.width, color)});
    m_nPictureBytes += static_cast<std::size_t>(made.image.sizeInBytes());
    return made.image;
}

LayoutText::Label& LayoutText::FindLabel(std::string_view text)
{
    std::string key(text);
    if (const auto it = m_labels.find(key); it != m_labels.end())
        return it->second;
    if (m_labels.size() >= kMaxLabels || m_nPictureBytes >= kMaxPictureBytes) {
        m_labels.clear();
        m_nPictureBytes = 0;
    }
    Label& label = m_labels[std::move(key)];
    label.width = TextLine(text, m_font).Width();
    return label;
}

QImage LayoutText::Render(std::string_view text, int nWidth, COLORREF color) const
{
    QImage picture(nWidth + 2 * m_nRoom, 4 * m_nRoom, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    TextLine(text, m_font).Draw(painter, CPoint(m_nRoom, m_nRoom + m_nBaseline), color);
    return picture;
}

} // namespace qtdesktop
