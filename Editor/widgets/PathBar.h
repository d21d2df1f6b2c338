// The path to what is shown, each part of which leads there; or a field to type another.
#pragma once

#include "Editor/widgets/CrumbLayout.h"
#include "Editor/widgets/Look.h"
#include "Editor/widgets/SpotBar.h"
#include "Editor/widgets/TextField.h"

namespace editor
{

class CPathBar : public CSpotBar
{
public:
    struct Events
    {
        std::function<void(int nPart)> go;
        std::function<void()> wantTyping;                         // the user pressed beside the path
        std::function<std::string(const std::string& path)> type; // empty when that is shown, else why not
        std::function<void()> leave;                              // the focus goes back to the views
    };
    explicit CPathBar(Events events);

    BOOL Create(CWnd* pParent);
    const std::vector<std::string>& GetPath() const { return m_parts; }
    void SetPath(std::vector<std::string> parts); // valid UTF-8; from the top
    void BeginTyping(const std::string& path);    // shows the field with that text
    CTextField& GetField() { return m_field; }

    std::vector<Part> AccParts() override;
    void AccUse(int nPart) override;

protected:
    Part AccWindow() override { return {ROLE_SYSTEM_TOOLBAR, 0, {}, {}, {}}; }
    int SpotAt(CPoint point) const override;
    void UseSpot(int nSpot) override;

    void Erase(HDC hdc) override { FillTopBar(hdc, Client()); }
    void Draw(HDC hdc) override;
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    static constexpr int kBeside = -2; // the room behind the path

    CRect FieldRect() const; // with its line
    CrumbLayout Layout() const;
    void Enter(const std::string& path);
    void EndTyping();
    void DrawCrumbs(HDC hdc) const;

    const Events m_events;
    std::vector<std::string> m_parts;
    CTextField m_field;
};

} // namespace editor
