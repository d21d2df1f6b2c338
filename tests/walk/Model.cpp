// What all views have in common: who hears what, the focus, and labels edited in place.
#include "tests/walk/Model.h"

#include "Toolkit/message/Messages.h"

#include <algorithm>
#include <cctype>

namespace
{

constexpr DWORD kDoubleClick = 500; // milliseconds

std::unique_ptr<ViewModel> NewModel(Model& model, int view)
{
    return view < kTree ? NewModelOfList(model, view) : NewModelOfTree(model, view);
}

} // namespace

int CompareText(const std::string& a, const std::string& b)
{
    const auto fold = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
    const auto [one, other] =
        std::mismatch(a.begin(), a.end(), b.begin(), b.end(), [&](char x, char y) { return fold(x) == fold(y); });
    if (one == a.end() || other == b.end())
        return static_cast<int>(one != a.end()) - static_cast<int>(other != b.end());
    return fold(*one) - fold(*other);
}

int CompareAtoms(const Atom* a, const Atom* b)
{
    return a->isLink && b->isLink ? a->position - b->position : CompareText(a->name, b->name);
}

void ViewModel::LoseFocus()
{
    hasFocus = fromSelChange = false;
    labelDue.reset();
}

void ViewModel::GainFocus()
{
    focusedAt = m_model.Now();
    if (IsEdited())
        m_model.EndEdit(true);
}

bool ViewModel::Ask(Op op, const Atom* pAtom, const Atom* pContainer)
{
    return m_model.Ask(m_view, op, pAtom, pContainer);
}

void ViewModel::Tell(Op op, Atom* pAtom, Atom* pContainer)
{
    m_model.Tell(m_view, op, pAtom, pContainer);
}

bool ViewModel::TakeFocus()
{
    m_model.SetFocus(m_view);
    return m_model.Focus() == m_view;
}

bool ViewModel::IsEdited() const
{
    return m_model.IsEdited(m_view);
}

Model::Model(Host& of, const Layout& within) : host(of), layout(within)
{
    BeginAgain();
}

void Model::BeginAgain()
{
    for (int view = 0; view < kViews; ++view)
        m_views[static_cast<std::size_t>(view)] = NewModel(*this, view);
    m_handlers = host.RegisteredViews();
    m_calls.clear();
    m_edit = Edit();
    m_focus = kOther;
    m_nFocusBlocks = 0;
}

void Model::NoteLayout()
{
    for (int view = 0; view < kViews; ++view)
        if (IsAlive(view))
            At(view).page = layout.Page(view);
}

void Model::Say(int who, Op op, const Atom* pAtom, const Atom* pContainer)
{
    m_calls.push_back({who, op, pAtom, pContainer});
}

bool Model::Ask(int who, Op op, const Atom* pAtom, const Atom* pContainer)
{
    Say(who, op, pAtom, pContainer);
    return !host.Vetoes(op, pAtom);
}

void Model::Tell(int who, Op op, Atom* pAtom, Atom* pContainer)
{
    Say(who, op, pAtom, pContainer);
    for (const int view : std::vector(m_handlers))
        if (view != who || !host.skipsSender)
            Hear(view, op, pAtom, pContainer);
}

void Model::Make(int view)
{
    m_views[static_cast<std::size_t>(view)] = NewModel(*this, view);
    At(view).isAlive = At(view).isVisible = true;
    m_handlers.push_back(view);
}

void Model::Destroy(int view)
{
    Show(view, false);
    if (m_focus == view) // taken again by what the hiding has led to
        SetFocus(kFrame);
    std::erase(m_handlers, view);
    At(view).WindowGoes();
    At(view).isAlive = false;
}

// What is hidden passes the focus on to the frame.
void Model::Show(int view, bool bShow)
{
    At(view).isVisible = bShow;
    if (!bShow && (m_focus == view || m_focus == kField + view))
        SetFocus(kFrame);
}

void Model::SetFocus(int focus)
{
    if (focus == m_focus || (focus >= 0 && focus < kViews && !IsAlive(focus)))
        return;
    ViewModel* const pLoser = Focused();
    const bool bLeavesField = IsInField() && focus != kNoFocus;
    const int former = std::exchange(m_focus, focus);
    const unsigned nMove = ++m_nMoves;
    if (pLoser)
        pLoser->LoseFocus();
    if (bLeavesField)
        EndEdit(true);
    if (nMove == m_nMoves && Focused())
        Gain(focus, former);
}

// Before a view has the focus, the others are offered to save, and hear what is selected there.
void Model::Gain(int view, int former)
{
    ViewModel& gainer = At(view);
    if (m_nFocusBlocks > 0)
        return gainer.GainFocus();
    ++m_nFocusBlocks;
    const bool bFromSelChange = gainer.fromSelChange;
    bool bWelcome = view == kPassive || !host.active || Ask(kNobody, Op::PreSave, host.pWorld.Get(), nullptr);
    if (bWelcome && view != kPassive)
        bWelcome = gainer.AnnounceSelection() || former == kNoFocus;
    if (bWelcome) {
        gainer.fromSelChange = false;
        gainer.hasFocus = true;
        gainer.GainFocus();
    } else {
        if (former != kNoFocus)
            SetFocus(former);
        gainer.fromSelChange = bFromSelChange;
    }
    --m_nFocusBlocks;
}

void Model::OpenEdit(int view, const Atom* pAtom)
{
    m_edit = {view, pAtom->name, pAtom->name};
    SetFocus(kField + view);
}

// The field goes first; what was typed is taken afterwards.
void Model::EndEdit(bool bTaken)
{
    const Edit edit = std::exchange(m_edit, Edit());
    if (m_focus == kField + edit.view)
        SetFocus(edit.view);
    const auto [pAtom, pContainer] = At(edit.view).Edited();
    if (!bTaken || !pAtom)
        return;
    // Where the name has changed meanwhile nobody wants an untouched one back.
    if (edit.text != edit.textBefore || pAtom->name == edit.text)
        RenameTo(pAtom, pContainer, edit.text);
}

// An atom bears a name already when it is the first member of that name.
void Model::RenameTo(Atom* pAtom, Atom* pContainer, const std::string& text)
{
    const auto renamed = host.renamed.find(pAtom);
    const bool bDone = renamed != host.renamed.end();
    const auto isOfThatName = [&text](const AtomRef& p) { return p->name == text; };
    const auto first = std::ranges::find_if(pContainer->members, isOfThatName);
    if (!bDone && first != pContainer->members.end() && first->Get() == pAtom)
        return;
    if (!(pContainer->permissions & APF_RENAME))
        return;
    Say(kNobody, Op::Renames, pAtom, pContainer);
    if (!bDone)
        return; // refused
    Tell(kNobody, Op::Create, renamed->second.Get(), pContainer);
    Tell(kNobody, Op::Delete, pAtom, pContainer);
}

void Model::Click(int view, const Hit& hit, Keys keys, bool right)
{
    At(view).Click(hit, keys, right);
    if (right && view != kPassive)
        Say(kNobody, Op::Menu, nullptr, nullptr);
}

void Model::DoubleClick(int view, const Hit& hit)
{
    Click(view, hit, {}, false);
    At(view).labelDue.reset();
    if (m_focus == view) // not refused
        At(view).PressAgain(hit);
}

void Model::Key(UINT vkey, Keys keys)
{
    if (IsInField())
        return KeyInField(vkey);
    Scrolled();
    if (Focused())
        Focused()->Key(vkey, keys);
}

void Model::KeyInField(UINT vkey)
{
    if (vkey == VK_RETURN || vkey == VK_ESCAPE)
        return EndEdit(vkey == VK_RETURN);
    if (vkey != VK_BACK)
        return;
    if (std::exchange(m_edit.allSelected, false))
        m_edit.text.clear();
    else if (!m_edit.text.empty())
        m_edit.text.pop_back();
}

void Model::Type(char c)
{
    if (IsInField()) {
        m_edit.text = (std::exchange(m_edit.allSelected, false) ? "" : m_edit.text) + c;
        return;
    }
    Scrolled();
    if (Focused())
        Focused()->Type(c);
}

void Model::Scrolled()
{
    if (Focused())
        Focused()->labelDue.reset();
}

// A slow second click on a label comes due.
void Model::LetTimePass(DWORD nNow)
{
    for (int view = 0; view < kViews; ++view) {
        ViewModel& due = At(view);
        if (!due.labelDue || nNow - *due.labelDue < kDoubleClick)
            continue;
        m_now = *due.labelDue + kDoubleClick;
        due.labelDue.reset();
        if (m_focus == view)
            due.BeginDueLabel();
    }
    m_now = nNow;
}
