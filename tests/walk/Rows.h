// What a view shows, row by row, as the views and the model both tell it.
#pragma once

#include "tests/support/FakeAtom.h"

using Atom = FakeAtom;

// "b#3", which tells atoms of one name apart, or "-" for none.
inline std::string Print(const Atom* pAtom)
{
    return pAtom ? pAtom->name + "#" + std::to_string(pAtom->serial) : "-";
}

struct Row
{
    Atom *pAtom = nullptr, *pContainer = nullptr; // no atom where a list's container lacks a member
    int depth = 0;                                // of a tree's item, which stand each before those below it
    bool isSelected = false, isFocused = false;
    bool isExpanded = false, isBold = false;
    friend bool operator==(const Row&, const Row&) = default;
};
using Rows = std::vector<Row>;

// "*a#1 (b#2)", "world#1+! >*a#2!": * selected, () focused, + expanded, ! bold, > for each level.
inline std::string Print(const Rows& rows)
{
    std::string text;
    for (const Row& row : rows)
        text += std::string(static_cast<std::size_t>(row.depth), '>') + (row.isFocused ? "(" : "") +
                (row.isSelected ? "*" : "") + Print(row.pAtom) + (row.isExpanded ? "+" : "") + (row.isBold ? "!" : "") +
                (row.isFocused ? ") " : " ");
    return text;
}
