// A sheet over the views that lists the keys.
#pragma once

#include "Editor/widgets/Look.h"
#include "HostKit/frame/Widget.h"
#include "Toolkit/access/Accessible.h"

#include <functional>
#include <string>
#include <vector>

namespace editor
{

// Groups of lines in as many columns as there is room for; a wheel and the arrows scroll what is too long. Goes with
// Escape, a press, or when the focus goes elsewhere.
class CKeysSheet : public hostkit::CWidget, public toolkit::AccessibleParts
{
public:
    struct Line
    {
        std::string key, what;
    };
    struct Group
    {
        std::string title;
        std::vector<Line> lines;
    };

    explicit CKeysSheet(std::function<void()> leave) : CWidget(0), m_leave(std::move(leave)) {}

    void Show(std::vector<Group> groups);
    void Leave() { m_leave(); } // the focus goes back to the views
    const std::vector<Group>& GetGroups() const { return m_groups; }

    std::vector<Part> AccParts() override;

protected:
    Part AccWindow() override { return {ROLE_SYSTEM_LIST, STATE_SYSTEM_FOCUSABLE, "Keys", {}, {}}; }
    void Erase(HDC hdc) override { FillSolidRect(hdc, Client(), SheetColor()); }
    void Draw(HDC hdc) override;
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnLButtonDown(UINT, CPoint) { Leave(); }
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint point);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    DECLARE_MESSAGE_MAP()

private:
    struct Place // of a group
    {
        CRect rect;
        const Group* pGroup;
    };
    std::vector<Place> Layout() const; // as if nothing were scrolled
    void ScrollBy(int nPixels);
    void DrawGroup(HDC hdc, const Place& place) const;

    const std::function<void()> m_leave;
    std::vector<Group> m_groups;
    int m_nScrolled = 0; // pixels
};

} // namespace editor
