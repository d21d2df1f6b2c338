#include "QtDesktop/text/KnownLabels.h"

#include <algorithm>
#include <functional>

namespace qtdesktop
{

KnownLabels::Set& KnownLabels::SetOf(std::string_view text)
{
    m_sets.resize(kSets);
    return m_sets[std::hash<std::string_view>()(text) % kSets];
}

KnownLabel* KnownLabels::Find(std::string_view text)
{
    if (text.size() > kLongest)
        return nullptr;
    auto& labels = SetOf(text).labels;
    const auto found = std::ranges::find_if(
        labels, [text](const KnownLabel& label) { return label.width >= 0 && label.text == text; });
    return found == labels.end() ? nullptr : &*found;
}

// Texts and masks keep their memory: the next label is hardly larger.
KnownLabel& KnownLabels::Add(std::string_view text, int width)
{
    Set& set = SetOf(text);
    KnownLabel& label = set.labels[set.nNext];
    set.nNext = (set.nNext + 1) % kWays;
    label.text = text;
    label.width = width;
    label.hasMask = false;
    return label;
}

} // namespace qtdesktop
