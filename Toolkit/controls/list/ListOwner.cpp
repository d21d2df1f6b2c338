// How the list control asks and tells its owner.
#include "Toolkit/controls/list/ListControl.h"

namespace toolkit
{

namespace
{
NMLISTVIEW StateChange(int row, UINT oldState, UINT newState)
{
    NMLISTVIEW change{};
    change.iItem = row;
    change.uOldState = oldState;
    change.uNewState = newState;
    change.uChanged = LVIF_STATE;
    return change;
}
} // namespace

bool ListControl::TellClick(UINT code, int row, CPoint at) const
{
    NMITEMACTIVATE click{};
    click.iItem = row;
    click.ptAction = at;
    return Tell(code, click.hdr);
}

bool ListControl::AskChange(int row, UINT oldState, UINT newState, bool* pAllowed) const
{
    NMLISTVIEW change = StateChange(row, oldState, newState);
    LRESULT refused = 0;
    const bool alive = Tell(LVN_ITEMCHANGING, change.hdr, &refused);
    *pAllowed = refused == 0;
    return alive;
}

bool ListControl::TellChange(int row, UINT oldState, UINT newState) const
{
    NMLISTVIEW change = StateChange(row, oldState, newState);
    return Tell(LVN_ITEMCHANGED, change.hdr);
}

} // namespace toolkit
