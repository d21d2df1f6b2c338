// What two lists and two trees must show, told only what the user and the host do: written from the views' contract,
// in the plainest way, without a cache, a handle or a window.
//
// Where the outcome depends on where things lie, the caller says what is under the mouse, and Layout how much fits.
#pragma once

#include "tests/walk/Host.h"
#include "tests/walk/Rows.h"

#include <memory>
#include <optional>

inline constexpr int kIcons = 0, kThumbs = 1, kTree = 2, kPassive = 3, kViews = 4;
// Who has the focus: a view, the label field of a view (kField + view), another window, the frame, or nobody.
inline constexpr int kField = 4, kOther = 8, kFrame = 9, kNoFocus = -1;

class Layout
{
public:
    virtual int Columns(int view) const = 0; // of a list
    virtual int Page(int view) const = 0;    // a list's full lines, a tree's full rows
    virtual const Atom* TopItem(int view) const = 0;

protected:
    ~Layout() = default;
};

struct Keys
{
    bool shift = false, control = false;
};

enum class Part
{
    Nothing,
    Picture,
    Label,
    Button,
    Beside // in an item's row
};

struct Hit
{
    int row = -1;                // of a list
    const Atom* pAtom = nullptr; // of a tree
    Part part = Part::Nothing;
    friend bool operator==(const Hit&, const Hit&) = default;
};

class Model;

// One of the views: what lists and trees answer differently.
class ViewModel
{
public:
    ViewModel(Model& model, int view) : m_model(model), m_view(view) {}
    virtual ~ViewModel() = default;

    bool isAlive = false, isVisible = false;
    bool hasFocus = false;
    bool fromSelChange = false; // a change of the selection takes the focus: nothing is left to announce
    DWORD focusedAt = 0;
    std::optional<DWORD> labelDue; // a click that begins the editing of a label, unless something intervenes
    int page = 0;                  // as Layout says, before a key

    virtual void WindowGoes() = 0;
    virtual void Take(Atom* pContainer, const Rows& rows, bool bPaneShown) = 0;
    virtual void Hear(Op op, Atom* pAtom, Atom* pContainer) = 0;
    virtual bool AnnounceSelection() = 0; // false when that is refused
    virtual void LoseFocus();
    virtual void GainFocus();
    virtual void Click(const Hit& hit, Keys keys, bool right) = 0;
    virtual void PressAgain(const Hit& hit) = 0; // the second press of a double click
    virtual void Key(UINT vkey, Keys keys) = 0;
    virtual void Type(char c) = 0;
    virtual void BeginRename() = 0;                     // as the editor asks for it
    virtual void BeginDueLabel() = 0;                   // as a slow second click does
    virtual std::pair<Atom*, Atom*> Edited() const = 0; // and its container
    virtual Rows Shows() const = 0;

protected:
    bool Ask(Op op, const Atom* pAtom, const Atom* pContainer);
    void Tell(Op op, Atom* pAtom, Atom* pContainer);
    bool TakeFocus();
    bool IsEdited() const;

    Model& m_model;
    const int m_view;
};

class Model
{
public:
    Model(Host& host, const Layout& layout);

    Host& host;
    const Layout& layout;

    // What the host does.
    void Make(int view);
    void Destroy(int view);
    void Show(int view, bool bShow);
    void Announce(Op op, Atom* pAtom, Atom* pContainer) { Tell(kNobody, op, pAtom, pContainer); }
    void Hear(int view, Op op, Atom* pAtom, Atom* pContainer) { At(view).Hear(op, pAtom, pContainer); }
    void SetFocus(int focus);
    void BeginRename(int view) { At(view).BeginRename(); }

    // What the user does.
    void NoteLayout(); // before a key moves by pages, which may itself change how much fits
    void Click(int view, const Hit& hit, Keys keys, bool right);
    void DoubleClick(int view, const Hit& hit);
    void Key(UINT vkey, Keys keys);
    void Type(char c);
    void Scrolled(); // by the wheel, when the focused view is under the mouse
    void LetTimePass(DWORD nNow);
    void SetTime(DWORD nNow) { m_now = nNow; }

    // What must be seen.
    bool IsAlive(int view) { return At(view).isAlive; }
    Rows Shows(int view) { return At(view).Shows(); }
    bool IsEdited(int view) const { return m_edit.view == view; }
    bool IsEditing() const { return m_edit.view >= 0; }
    const std::string& EditedText() const { return m_edit.text; }
    int Focus() const { return m_focus; }
    Calls TakeCalls() { return std::exchange(m_calls, {}); }

    // After steps that it could not follow: what the views show is taken over.
    void BeginAgain();
    void Take(int view, Atom* pContainer, const Rows& rows) { At(view).Take(pContainer, rows, host.panes[view]); }

    // For the views' models.
    DWORD Now() const { return m_now; }
    void Say(int who, Op op, const Atom* pAtom, const Atom* pContainer);
    bool Ask(int who, Op op, const Atom* pAtom, const Atom* pContainer);
    void Tell(int who, Op op, Atom* pAtom, Atom* pContainer);
    void OpenEdit(int view, const Atom* pAtom);
    void EndEdit(bool bTaken);

private:
    struct Edit
    {
        int view = -1;
        std::string text, textBefore;
        bool allSelected = true;
    };

    ViewModel& At(int view) { return *m_views[static_cast<std::size_t>(view)]; }
    ViewModel* Focused() { return m_focus >= 0 && m_focus < kViews ? &At(m_focus) : nullptr; }
    bool IsInField() const { return IsEditing() && m_focus == kField + m_edit.view; }
    void Gain(int view, int former);
    void KeyInField(UINT vkey);
    void RenameTo(Atom* pAtom, Atom* pContainer, const std::string& text);

    std::array<std::unique_ptr<ViewModel>, kViews> m_views;
    std::vector<int> m_handlers; // in the order in which they registered
    Calls m_calls;
    Edit m_edit;
    int m_focus = kOther;
    unsigned m_nMoves = 0;
    int m_nFocusBlocks = 0;
    DWORD m_now = 0;
};

std::unique_ptr<ViewModel> NewModelOfList(Model& model, int view);
std::unique_ptr<ViewModel> NewModelOfTree(Model& model, int view);

// The order of names and labels, and of a container's members.
int CompareText(const std::string& a, const std::string& b);
int CompareAtoms(const Atom* a, const Atom* b);
