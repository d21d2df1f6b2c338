// The numeric field under whatever is typed, pasted and set. Bytes from the blank on are typed; those below are keys
// and commands, some of which take what follows.
#include "Toolkit/base/Text.h"
#include "Toolkit/headless/HeadlessDesktop.h"
#include "Views/controls/controls.h"
#include "fuzz/Check.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>

namespace
{

constexpr UINT kField = 5;

class Pane : public CWnd
{
public:
    int nChanges = 0;

protected:
    afx_msg void OnFieldChange() { ++nChanges; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Pane, CWnd)
    ON_CONTROL(EN_CHANGE, kField, OnFieldChange)
END_MESSAGE_MAP()

// The number that a text begins with, as the platform reads it: its lower 32 bits.
std::optional<int> NumberIn(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n"), text.size()));
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+'))
        text.remove_prefix(1);
    const std::string_view digits = text.substr(0, text.find_first_not_of("0123456789"));
    std::uint32_t nValue = 0;
    for (const char c : digits)
        nValue = nValue * 10 + static_cast<std::uint32_t>(c - '0');
    if (digits.empty())
        return std::nullopt;
    return static_cast<int>(isNegative ? 0 - nValue : nValue);
}

bool HasOnly(const std::string& text, std::string_view characters)
{
    return text.find_first_not_of(characters) == text.npos;
}

class Session
{
public:
    explicit Session(std::string_view bytes) : m_bytes(bytes)
    {
        m_pane.CreateEx(0, "", "", WS_OVERLAPPED | WS_VISIBLE, CRect(0, 0, 200, 100), nullptr, 0);
        m_field.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 110, 30), &m_pane, kField);
        m_field.SetFocus();
    }
    ~Session()
    {
        m_pane.DestroyWindow();
        m_desktop.TakeClipboard({});
    }

    std::string Run()
    {
        std::string broken;
        while (broken.empty() && !m_bytes.empty()) {
            m_strFormer = m_field.GetWindowText();
            m_pane.nChanges = 0;
            broken = static_cast<unsigned char>(m_bytes[0]) < ' ' ? Command(Take(1)[0]) : Type();
            if (broken.empty())
                broken = CheckState();
        }
        return broken;
    }

private:
    std::string_view Take(std::size_t n)
    {
        const std::string_view taken = m_bytes.substr(0, n);
        m_bytes.remove_prefix(taken.size());
        return taken;
    }
    // One byte for what is near 0, with 0xFF in front four.
    int Number()
    {
        const std::string_view first = Take(1);
        if (first.empty() || first[0] != '\xFF')
            return first.empty() ? 0 : static_cast<signed char>(first[0]);
        std::uint32_t n = 0;
        for (const char c : Take(4))
            n = n << 8 | static_cast<unsigned char>(c);
        return static_cast<int>(n);
    }
    std::string Text() // up to the next control character
    {
        const auto end = std::find_if(m_bytes.begin(), m_bytes.end(), [](unsigned char c) { return c < ' '; });
        return std::string(Take(static_cast<std::size_t>(end - m_bytes.begin())));
    }
    void Control(UINT vkey)
    {
        m_desktop.Hold({.control = true});
        m_desktop.Key(vkey);
        m_desktop.Hold({});
    }

    // Nothing but digits, and a minus where the range and the caret allow it, gets in by typing.
    std::string Type()
    {
        const bool isMinusDue = m_nMin < 0 && (StartOfSelection() == 0 || m_strFormer == "<Different>");
        const std::string typed(Take(static_cast<std::size_t>(toolkit::DecodeUtf8(m_bytes).bytes)));
        m_desktop.Type(typed);
        const std::string now(m_field.GetWindowText());
        const bool isTaken = HasOnly(typed, "0123456789") || (typed == "-" && isMinusDue);
        if (!isTaken && now != m_strFormer && m_strFormer != "<Different>")
            return "what may not be typed changed the text";
        if (HasOnly(m_strFormer, "0123456789-") && !HasOnly(now, "0123456789-"))
            return "typing brought in more than digits and minus signs";
        if (m_nMin >= 0 && HasOnly(m_strFormer, "0123456789") && !HasOnly(now, "0123456789"))
            return "a minus in a field without negative numbers";
        return {};
    }

    std::string Command(char code)
    {
        constexpr UINT keys[] = {VK_HOME, VK_END, VK_LEFT, VK_RIGHT, VK_BACK, VK_DELETE, VK_SHIFT, VK_RETURN};
        constexpr UINT letters[] = {'A', 'C', 'V', 'X', 'Z'};
        const auto n = static_cast<std::size_t>(code);
        if (n < std::size(keys))
            return Key(keys[n]);
        if (n - 8 < std::size(letters))
            return Control(letters[n - 8]), std::string();
        switch (code) {
        case 13: // selecting with the keys
            m_desktop.Hold({.shift = true});
            m_desktop.Key(VK_LEFT);
            return m_desktop.Hold({}), std::string();
        case 14:
            return Refocus();
        case 15:
            m_nMin = Number();
            m_nMax = Number();
            m_field.SetRange(m_nMin, m_nMax);
            if (m_nMin > m_nMax)
                std::swap(m_nMin, m_nMax);
            return {};
        case 16:
            return SetValue(Number());
        case 17:
            m_field.SetDifferent();
            return m_field.IsDifferent() && m_pane.nChanges == 1 ? "" : "the mixed value is not shown";
        case 18:
            m_desktop.TakeClipboard({{"text/plain;charset=utf-8", Text()}});
            return Control('V'), std::string();
        case 19:
            m_field.SetWindowText(Text().c_str());
            return m_pane.nChanges <= 3 ? "" : "the text did not settle in three runs";
        default:
            return {};
        }
    }

    int StartOfSelection() const
    {
        int nStart = 0, nEnd = 0;
        m_field.GetSel(nStart, nEnd);
        return nStart;
    }
    bool IsAllSelected() const
    {
        int nStart = 0, nEnd = 0;
        m_field.GetSel(nStart, nEnd);
        return nStart == 0 && nEnd == m_field.GetWindowText().GetLength();
    }

    std::string Key(UINT vkey)
    {
        const bool isMixed = m_strFormer == "<Different>";
        m_desktop.Key(vkey);
        const int nRefill = std::min(std::max(m_nMin, 0), m_nMax);
        if (isMixed && vkey == VK_SHIFT &&
            (NumberIn(m_field.GetWindowText().GetString()) != nRefill || !IsAllSelected()))
            return "a key did not end the mixed value with the refill, selected";
        return {};
    }
    std::string Refocus()
    {
        m_pane.SetFocus();
        m_field.SetFocus();
        return m_strFormer != "<Different>" || IsAllSelected() ? "" : "the mixed value is not selected with the focus";
    }
    std::string SetValue(int nValue)
    {
        m_field.SetValue(nValue);
        if (m_field.GetWindowText().GetString() != std::to_string(std::clamp(nValue, m_nMin, m_nMax)))
            return "a value that was set is not shown as the range has it";
        return m_pane.nChanges <= 2 ? "" : "a value that was set did not settle";
    }

    std::string CheckState() const
    {
        const std::string text(m_field.GetWindowText());
        const std::optional<int> number = NumberIn(text);
        int nValue = 4711;
        const bool hasValue = m_field.GetValue(nValue);
        if (hasValue != number.has_value() || nValue != number.value_or(4711))
            return "the value is not what the text says: " + text;
        if (m_field.IsDifferent() != (toolkit::CompareNoCase(text, "<Different>") == 0))
            return "the mixed state is not what the text says: " + text;
        if (m_pane.nChanges == 0)
            return text == m_strFormer ? std::string() : "the text changed and nobody was told";
        if (text.empty() || (number && (*number < m_nMin || *number > m_nMax)))
            return "the text was left out of range: " + text;
        return {};
    }

    toolkit::HeadlessDesktop m_desktop;
    Pane m_pane;
    CDigitalEdit m_field;
    std::string_view m_bytes;
    std::string m_strFormer;
    int m_nMin = 0, m_nMax = 100;
};

} // namespace

std::string fuzz::Check(std::string_view bytes)
{
    return Session(bytes.substr(0, 256)).Run();
}
