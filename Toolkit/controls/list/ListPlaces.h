// Where the parts of a list's rows lie, given what its owner shows in them.
#pragma once

#include "Toolkit/controls/list/ListLayout.h"
#include "Toolkit/controls/list/ListOwner.h"

namespace toolkit
{

class ListPlaces
{
public:
    struct Hit
    {
        int row = -1; // -1: none
        UINT flags = LVHT_NOWHERE;
    };

    ListPlaces(const ListLayout& layout, ListOwner& owner) : m_layout(layout), m_owner(owner) {}

    Hit HitTest(CPoint client) const;

    LRESULT OnHitTest(WPARAM, LPARAM lParam);
    LRESULT OnGetItemRect(WPARAM wParam, LPARAM lParam);

private:
    const ListLayout& m_layout;
    ListOwner& m_owner;
};

} // namespace toolkit
