// A window that writes down the messages it gets, and can be told what to do at one.
#pragma once

#include "Toolkit/window/Wnd.h"
#include "tests/support/Ledger.h"

#include <functional>
#include <map>
#include <set>
#include <string>

class SpyWnd : public CWnd
{
public:
    // Writes "name MESSAGE" for each message of the set; which parameters follow depends on the message.
    SpyWnd(std::string name, LedgerBook& book, std::set<UINT> messages);

    bool Show(CWnd* pParent, const CRect& rect, DWORD style = 0); // creates it, visible
    void At(UINT message, std::function<void()> action) { m_actions[message] = std::move(action); }
    void Answer(UINT message, LRESULT result) { m_answers[message] = result; }

    std::function<void()> gone; // called by PostNcDestroy

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    void PostNcDestroy() override;

    const std::string m_name;
    LedgerBook& m_book;

private:
    const std::set<UINT> m_messages;
    std::map<UINT, std::function<void()>> m_actions;
    std::map<UINT, LRESULT> m_answers;
};
