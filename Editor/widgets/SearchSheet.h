// A sheet over the views with a field and what was found for it.
#pragma once

#include "Editor/widgets/Look.h"
#include "Editor/widgets/TextField.h"
#include "HostKit/frame/Widget.h"
#include "Toolkit/access/Accessible.h"

#include <vector>

namespace editor
{

// The field keeps the keys: the arrows choose among the lines, which the wheel scrolls, and Return or a double click
// uses one.
class CSearchSheet : public hostkit::CWidget, public toolkit::Accessible
{
public:
    struct Line
    {
        std::string what, where;
    };
    struct Events
    {
        std::function<void(const std::string& text)> typed;
        std::function<void(std::size_t nLine)> chosen;
        std::function<void()> leave; // Escape
    };
    explicit CSearchSheet(Events events);

    BOOL Create(CWnd* pParent);
    void Show(const std::string& text); // without lines; what stands in the field is selected
    void Hide() { ShowWindow(SW_HIDE); }
    void Clear();
    void Add(std::vector<Line> lines);
    void SetNews(std::string news); // at the field's right: how the search goes

    const std::vector<Line>& GetLines() const { return m_lines; }
    const std::string& GetNews() const { return m_news; }
    CTextField& GetField() { return m_field; }

    // An item is a line, counted from 1.
    UINT AccRole(LPARAM item) override { return item == CHILDID_SELF ? ROLE_SYSTEM_LIST : ROLE_SYSTEM_LISTITEM; }
    UINT AccState(LPARAM item) override;
    std::string AccName(LPARAM item) override;
    CRect AccPlace(LPARAM item) override;
    bool AccHas(LPARAM item) override { return item >= 1 && item <= AccCount(CHILDID_SELF); }
    int AccCount(LPARAM parent) override { return parent == CHILDID_SELF ? static_cast<int>(m_lines.size()) : 0; }
    LPARAM AccChild(LPARAM, int place) override { return place + 1; }
    std::string AccAction(LPARAM item) override { return item == CHILDID_SELF ? "" : "Go there"; }
    void AccDo(LPARAM item) override { m_events.chosen(static_cast<std::size_t>(item) - 1); }

protected:
    void Erase(HDC hdc) override { FillSolidRect(hdc, Client(), SheetColor()); }
    void Draw(HDC hdc) override;
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    CRect FieldRect() const; // with its line
    CRect ListRect() const;
    bool HandleKey(UINT vkey);
    void Choose(int nLine);
    void ScrollTo(int nFirst);
    int LinesInSight() const;

    const Events m_events;
    CTextField m_field;
    std::vector<Line> m_lines;
    std::string m_news;
    int m_nChosen = 0;
    int m_nFirst = 0; // in sight
};

} // namespace editor
