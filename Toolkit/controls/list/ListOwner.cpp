#include "Toolkit/controls/list/ListOwner.h"

#include <array>

namespace toolkit
{

namespace
{

constexpr std::size_t kLabelBuffer = 512; // lent to the owner, who may name a text of its own instead

NMLISTVIEW StateChange(int row, UINT oldState, UINT newState)
{
    NMLISTVIEW change{};
    change.iItem = row;
    change.uOldState = oldState;
    change.uNewState = newState;
    change.uChanged = LVIF_STATE;
    return change;
}

NMLVDISPINFO LabelInfo(int row, LPSTR pszText, std::size_t room)
{
    NMLVDISPINFO info{};
    info.item.mask = LVIF_TEXT;
    info.item.iItem = row;
    info.item.pszText = pszText;
    info.item.cchTextMax = static_cast<int>(room);
    return info;
}

} // namespace

void ListOwner::Hint(RowRange rows)
{
    NMLVCACHEHINT hint{};
    hint.iFrom = rows.first;
    hint.iTo = rows.end - 1;
    m_hinted = rows;
    m_control.Notify(LVN_ODCACHEHINT, hint.hdr);
}

void ListOwner::ForgetHint(int row)
{
    if (row >= m_hinted.first && row < m_hinted.end)
        ForgetHint();
}

RowFace ListOwner::AskFace(int row) const
{
    std::array<char, kLabelBuffer> buffer{};
    NMLVDISPINFO info = LabelInfo(row, buffer.data(), buffer.size());
    info.item.mask |= m_control.Images() ? LVIF_IMAGE : 0;
    info.item.iImage = -1;
    m_control.Notify(LVN_GETDISPINFO, info.hdr);
    return {info.item.pszText ? info.item.pszText : "", info.item.iImage};
}

RowFace ListOwner::HintAndAsk(int row)
{
    if (row < m_hinted.first || row >= m_hinted.end)
        Hint({row, row + 1});
    return AskFace(row);
}

int ListOwner::FindLabel(const std::string& prefix, int from) const
{
    NMLVFINDITEM find{};
    find.iStart = from;
    find.lvfi.flags = LVFI_STRING | LVFI_PARTIAL | LVFI_WRAP;
    find.lvfi.psz = prefix.c_str();
    return static_cast<int>(m_control.Notify(LVN_ODFINDITEM, find.hdr));
}

bool ListOwner::MayChange(int row, UINT oldState, UINT newState) const
{
    NMLISTVIEW change = StateChange(row, oldState, newState);
    return m_control.Notify(LVN_ITEMCHANGING, change.hdr) == 0;
}

void ListOwner::TellChange(int row, UINT oldState, UINT newState) const
{
    NMLISTVIEW change = StateChange(row, oldState, newState);
    m_control.Notify(LVN_ITEMCHANGED, change.hdr);
}

void ListOwner::TellClick(UINT code, int row, CPoint at) const
{
    NMITEMACTIVATE click{};
    click.iItem = row;
    click.ptAction = at;
    m_control.Notify(code, click.hdr);
}

void ListOwner::TellDrag(UINT code, int row, CPoint at) const
{
    NMLISTVIEW drag{};
    drag.iItem = row;
    drag.ptAction = at;
    m_control.Notify(code, drag.hdr);
}

std::optional<std::string> ListOwner::AskLabel(int row)
{
    std::string text = HintAndAsk(row).text;
    NMLVDISPINFO info = LabelInfo(row, text.data(), text.size() + 1);
    if (m_control.Notify(LVN_BEGINLABELEDIT, info.hdr) != 0)
        return std::nullopt;
    return info.item.pszText ? std::string(info.item.pszText) : text;
}

void ListOwner::TellLabel(int row, std::string& text, bool taken) const
{
    NMLVDISPINFO info = LabelInfo(row, taken ? text.data() : nullptr, text.size() + 1);
    m_control.Notify(LVN_ENDLABELEDIT, info.hdr);
}

} // namespace toolkit
