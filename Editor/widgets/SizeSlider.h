// How large thumbnails are, in the line at the bottom.
#pragma once

#include "Editor/widgets/Look.h"
#include "Editor/widgets/Slider.h"

#include <functional>

namespace editor
{

// A knob on a groove: dragged, or sent to where a press is. From one end to the other the size doubles at equal steps.
class CSizeSlider : public CSlider
{
public:
    static constexpr int kWidth = 136; // pixels

    struct Events
    {
        std::function<int()> ask;           // pixels
        std::function<void(int nSize)> set; // by the user
        std::function<void(int nNotches)> step;
    };
    CSizeSlider(int nLeast, int nMost, Events events)
        : CSlider(0), m_nLeast(nLeast), m_nMost(nMost), m_events(std::move(events))
    {}

    CPoint PlaceOf(int nSize) const; // the knob's middle; client

    std::string AccName(LPARAM) override { return "Size of the thumbnails"; }
    std::optional<toolkit::AccRange> AccValue() override
    {
        return toolkit::AccRange{1.0 * m_nLeast, 1.0 * m_nMost, 1.0 * m_events.ask()};
    }
    void AccSetValue(double value) override;

protected:
    bool Takes(CPoint) const override { return true; }
    void PointAt(CPoint point) override;

    void Erase(HDC hdc) override { FillBottomBar(hdc, Client()); }
    void Draw(HDC hdc) override;
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    CRect Groove() const;

    const int m_nLeast, m_nMost;
    const Events m_events;
};

} // namespace editor
