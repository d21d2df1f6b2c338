// A ledger: what happened, line by line, compared as one exact sequence.
#pragma once

#include <string>
#include <utility>
#include <vector>

using Ledger = std::vector<std::string>;

// Keeps a ledger for a test's windows and hosts.
class LedgerBook
{
public:
    void Write(std::string line) { m_lines.push_back(std::move(line)); }

    // What was written since the last time.
    Ledger TakeLedger() { return std::exchange(m_lines, {}); }

private:
    Ledger m_lines;
};
