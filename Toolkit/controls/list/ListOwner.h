// What the list control asks its owner, and tells it.
#pragma once

#include "Toolkit/controls/items/ItemControl.h"
#include "Toolkit/controls/list/ListView.h"
#include "Toolkit/controls/list/RowSet.h"

#include <optional>
#include <string>

namespace toolkit
{

// What the owner shows in a row.
struct RowFace
{
    std::string text;
    int image = -1; // -1: none
};

class ListOwner
{
public:
    explicit ListOwner(const ItemControl& control) : m_control(control) {}

    // The rows that are about to be asked for. What the owner said of them holds until it is forgotten.
    void Hint(RowRange rows);
    void ForgetHint() { m_hinted = {0, 0}; }
    void ForgetHint(int row);
    RowFace AskFace(int row) const; // of a row hinted
    RowFace HintAndAsk(int row);    // hints the row when it is not known to be

    int FindLabel(const std::string& prefix, int from) const; // and round; -1 where no label begins so

    // States, LVIS_*. Row -1 stands for all.
    bool MayChange(int row, UINT oldState, UINT newState) const;
    void TellChange(int row, UINT oldState, UINT newState) const;

    void TellClick(UINT code, int row, CPoint at) const;
    void TellDrag(UINT code, int row, CPoint at) const; // returns when the drag is over

    std::optional<std::string> AskLabel(int row); // the text to begin with, which may be another; nothing: refused
    void TellLabel(int row, std::string& text, bool taken) const;

private:
    const ItemControl& m_control;
    RowRange m_hinted{0, 0};
};

} // namespace toolkit
