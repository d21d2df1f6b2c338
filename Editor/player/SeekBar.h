// Where in a row of frames the shown one stands, and what is told of it.
#pragma once

#include "Editor/widgets/Look.h"
#include "Editor/widgets/Slider.h"

#include <functional>
#include <string>

namespace editor
{

class CSeekBar : public CSlider
{
public:
    // `seek` is called with the frame that the user points at, the button held down.
    explicit CSeekBar(std::function<void(int nFrame)> seek) : m_seek(std::move(seek)) {}

    void Show(int nAt, int nCount, std::string text); // nAt from 0
    const std::string& GetText() const { return m_text; }

    // Of the frames that go by while it plays nobody is told.
    std::string AccName(LPARAM) override { return "Frame: " + m_text; }
    std::optional<toolkit::AccRange> AccValue() override;
    void AccSetValue(double value) override;

protected:
    bool Takes(CPoint point) const override { return Track().PtInRect(point); }
    void PointAt(CPoint point) override;
    void Erase(HDC hdc) override { FillTopBar(hdc, Client()); }
    void Draw(HDC hdc) override;

private:
    CRect Track() const; // what can be pointed at; empty where there is no room
    int PlaceOf(int nFrame, const CRect& track) const;

    const std::function<void(int)> m_seek;
    int m_nAt = -1, m_nCount = 0;
    std::string m_text;
};

} // namespace editor
