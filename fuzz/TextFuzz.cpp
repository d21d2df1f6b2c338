// Folding, comparing and sorting texts without regard to case. Each line is a text.
#include "Toolkit/base/Text.h"
#include "Toolkit/base/WideText.h"
#include "Views/host/inside/AtomOrder.h"
#include "fuzz/Check.h"

#include <algorithm>
#include <cstring>
#include <numeric>
#include <vector>

namespace
{

using Texts = std::vector<std::string>;

class Named final : public IAtom
{
public:
    explicit Named(const std::string& name) : m_name(name) {}

    void AddRef() override {}
    void Release() override {}
    void GetInterface(DWORD, void** out) override { *out = nullptr; }
    DWORD GetID() override { return 0; }
    BOOL GetContainer(void**, DWORD) override { return FALSE; }
    BOOL IsModified() override { return FALSE; }
    BOOL GetName(char* pBuffer, DWORD* pLength) override
    {
        if (pBuffer)
            std::memcpy(pBuffer, m_name.c_str(), *pLength);
        else
            *pLength = static_cast<DWORD>(m_name.size() + 1);
        return TRUE;
    }

private:
    const std::string& m_name;
};

Texts LinesOf(std::string_view bytes)
{
    Texts lines(1);
    for (const char c : bytes)
        if (c == '\n')
            lines.emplace_back();
        else if (c != '\0')
            lines.back() += c;
    return lines;
}

std::u32string Folded(std::string_view text)
{
    std::u32string folded;
    while (!text.empty()) {
        const auto [c, bytes] = toolkit::DecodeUtf8(text);
        folded += toolkit::FoldCase(c);
        text.remove_prefix(static_cast<std::size_t>(bytes));
    }
    return folded;
}

int Sign(int n)
{
    return (n > 0) - (n < 0);
}

std::string CheckOne(const std::string& text)
{
    if (toolkit::Narrow(toolkit::Widen(text)) != text)
        return "a text did not survive being made wide";
    for (const char32_t c : Folded(text))
        if (toolkit::FoldCase(c) != c)
            return "folding again folds further";
    return {};
}

std::string CheckPair(const std::string& a, const std::string& b)
{
    const int nOrder = Sign(_mbsicmp(a.c_str(), b.c_str()));
    if (nOrder != Sign(Folded(a).compare(Folded(b))))
        return "the order is not that of the folded code points";
    if (nOrder != -Sign(_mbsicmp(b.c_str(), a.c_str())) || nOrder != Sign(toolkit::CompareNoCase(a, b)))
        return "the order depends on who is asked first";
    std::string keyOfA, keyOfB;
    toolkit::AppendSortKey(keyOfA, a, toolkit::TextOrder::Natural);
    toolkit::AppendSortKey(keyOfB, b, toolkit::TextOrder::Natural);
    if ((nOrder == 0) != (keyOfA == keyOfB))
        return "numbers make other texts the same";
    return {};
}

std::string CheckKeys(const Texts& texts)
{
    std::vector<std::uint32_t> order(texts.size());
    std::iota(order.begin(), order.end(), 0u);
    std::stable_sort(order.begin(), order.end(),
                     [&](auto a, auto b) { return _mbsicmp(texts[a].c_str(), texts[b].c_str()) < 0; });

    views::NameKeys keys(texts.size(), MOF_BYNAME);
    for (const std::string& text : texts) {
        Named atom(text);
        keys.Add(&atom);
    }
    const auto& sorted = keys.Sort();
    const auto isSame = [](const auto& key, std::uint32_t nIndex) { return key.nIndex == nIndex; };
    return std::equal(sorted.begin(), sorted.end(), order.begin(), order.end(), isSame)
               ? std::string()
               : "the keys do not sort as the comparison does";
}

} // namespace

std::string fuzz::Check(std::string_view bytes)
{
    const Texts texts = LinesOf(bytes.substr(0, 512));
    for (const std::string& a : texts) {
        if (std::string broken = CheckOne(a); !broken.empty())
            return broken;
        for (const std::string& b : texts)
            if (std::string broken = CheckPair(a, b); !broken.empty())
                return broken;
    }
    return CheckKeys(texts);
}
