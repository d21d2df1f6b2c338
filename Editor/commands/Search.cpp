#include "Editor/commands/Search.h"

#include "Editor/disk/FileText.h"

namespace editor
{

Search::Search(Parts parts)
    : m_parts(std::move(parts)),
      m_sheet({[this](const std::string& text) { Look(text); }, [this](std::size_t nFound) { GoTo(nFound); },
               [this] { End(); }})
{}

void Search::Begin(const std::string& text)
{
    m_top = m_parts.navigation.ShownContainer() ? m_parts.navigation.ShownContainer()->Path() : std::string();
    m_sheet.Show(text);
    Look(text);
}

void Search::End()
{
    Forget();
    m_parts.content.TakeFocus();
}

void Search::Forget()
{
    m_search.Cancel();
    m_found.clear();
    m_sheet.Hide();
}

void Search::Look(const std::string& text)
{
    m_search.Cancel();
    m_found.clear();
    m_sheet.Clear();
    if (text.empty() || m_top.empty())
        return m_sheet.SetNews("Type a part of a name");
    m_sheet.SetNews("Searching ...");
    m_search.Begin(
        m_top, [key = KeyOf(text)](std::string_view name) { return KeyOf(name).find(key) != std::string::npos; },
        [this](const auto& found, bool isOver) { Take(found, isOver); });
}

void Search::Take(const std::vector<NameSearch::Found>& found, bool isOver)
{
    std::vector<CSearchSheet::Line> lines;
    for (const NameSearch::Found& one : found)
        lines.push_back({ToShown(one.name), ToShown(BaseName(m_top)) + '/' + ToShown(one.folder)});
    m_found.insert(m_found.end(), found.begin(), found.end());
    m_sheet.Add(std::move(lines));
    const std::string count = std::to_string(m_found.size()) + " found";
    m_sheet.SetNews(!isOver                               ? "Searching ... " + count
                    : m_found.empty()                     ? "Nothing found"
                    : m_found.size() == NameSearch::kMost ? "Only the first " + count
                                                          : count);
}

void Search::GoTo(std::size_t nFound)
{
    const NameSearch::Found found = m_found[nFound];
    const std::string path = m_top + '/' + (found.folder.empty() ? "" : found.folder + '/') + found.name;
    const CStubRef<CMember> pMember = m_parts.navigation.Library()->Find(path);
    if (!pMember)
        return m_parts.say(ToShown(found.name) + ": is not there any more");
    End();
    m_parts.navigation.GoTo(pMember->Container());
    std::vector<CStubRef<IAtom>> atoms;
    atoms.push_back(CStubRef<IAtom>::Share(pMember.Get()));
    m_parts.commands.SelectJust(atoms);
    m_parts.content.TakeFocus();
}

} // namespace editor
