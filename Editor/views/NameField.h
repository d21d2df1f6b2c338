// The field in which a name is edited, in a list or a tree.
#pragma once

#include "Toolkit/window/Wnd.h"
#include "Views/host/StubRef.h"
#include "Views/host/host.h"

#include <functional>
#include <string>

namespace editor
{

// Lies beside a field in its window, and says what is wrong with what was typed there.
class CFieldTrouble : public CWnd
{
public:
    void Show(HWND hField, const std::string& reason); // which becomes its text
    void Hide() { DestroyWindow(); }

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()
};

// For one view. When a field has got the focus with all of its text selected, only what stands before the extension
// stays selected; an extension begins with a letter and has up to five of them and digits. A name that was refused
// stays in the field, with the reason beside it, until the user has another or gives up.
class NameField
{
public:
    using Edit = std::function<HWND(IAtom*)>; // has the atom's name edited; the field, NULL: it is not shown any more

    NameField(CWnd& view, Edit edit) : m_view(view), m_edit(std::move(edit)) {}

    void After(UINT message, WPARAM wParam, LPARAM lParam); // the view has handled that message
    void Refused(IAtom* pAtom, LPCSTR pszTyped);            // its OnNameRefused

private:
    void GoOn();

    CWnd& m_view; // whose member this is
    const Edit m_edit;
    CStubRef<IAtom> m_pAtom;
    std::string m_typed, m_reason;
    CFieldTrouble m_trouble;
};

} // namespace editor
