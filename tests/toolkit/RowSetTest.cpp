#include "Toolkit/controls/list/RowSet.h"

#include <gtest/gtest.h>
#include <random>
#include <set>
#include <sstream>

using namespace toolkit;

namespace
{

std::string Text(const RowSet& rows)
{
    std::ostringstream text;
    for (RowRange run = rows.NextRange(-1); !run.IsEmpty(); run = rows.NextRange(run.end)) {
        text << (text.tellp() > 0 ? " " : "") << run.first;
        if (run.Count() > 1)
            text << '-' << run.end - 1;
    }
    return text.str();
}

TEST(RowSetTest, AgreesWithAPlainSetWhateverIsDone)
{
    std::mt19937 random(7);
    RowSet rows;
    std::set<int> plain;
    const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    for (int step = 0; step < 3000; ++step) {
        const int first = below(60), end = first + below(9);
        const bool insert = below(2) == 0;
        insert ? rows.Insert({first, end}) : rows.Erase({first, end});
        for (int row = first; row < end; ++row)
            insert ? void(plain.insert(row)) : void(plain.erase(row));

        ASSERT_EQ(static_cast<int>(plain.size()), rows.Count());
        const int asked = below(70) - 1;
        ASSERT_EQ(plain.count(asked) > 0, rows.Contains(asked));
        const auto next = plain.upper_bound(asked);
        ASSERT_EQ(next == plain.end() ? -1 : *next, rows.Next(asked));
        const RowSet other({below(60), 40});
        std::set<int> rest;
        for (const int row : plain)
            if (!other.Contains(row))
                rest.insert(row);
        RowSet expected;
        for (const int row : rest)
            expected.Insert({row, row + 1});
        ASSERT_EQ(Text(expected), Text(rows.Without(other)));
        ASSERT_EQ(Text(expected), Text(rows.Without(rows.Within(other))));
    }
}

} // namespace
