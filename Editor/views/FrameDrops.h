// What is dropped between the frames of a phase, and frames that are moved there in other ways.
#pragma once

#include "Editor/services/FramePlacing.h"
#include "Toolkit/exchange/DataObject.h"

namespace editor
{

class CEditorList;

// In a list that shows a phase. What comes is selected there, all of it in one step. Rows count from 0; what comes
// stands before that row, or behind all others. Empty when everything has come, else the reason.
class FrameDrops
{
public:
    explicit FrameDrops(CEditorList& list) : m_list(list) {} // borrowed

    CPhase* Phase() const; // that is shown, borrowed; NULL: the list shows something else
    // Would frames only change their places in the phase?
    bool IsReordering(bool bControl) const;

    std::string Reorder(int nRow);
    std::string Insert(IArchive* pArchive, int nRow);
    std::string InsertFiles(COleDataObject& data, int nRow);

    // The selected frames go one place on.
    std::string Shift(bool bLater);
    bool CanShift(bool bLater) const; // are there any, and not all at that end already?

private:
    UINT FrameAt(int nRow) const; // the list may show a part of them
    template <class Place>
    std::string PlaceAndSelect(int nRow, Place place);
    template <class IsPlaced>
    void Select(CAtomEditor& editor, CPhase& phase, IsPlaced isPlaced);

    CEditorList& m_list;
};

} // namespace editor
