#include "Editor/script/Words.h"

namespace editor
{
namespace
{

bool IsBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r';
}

// Takes the quoted part behind the opening quote off the line. False when it is not closed.
bool TakeQuoted(std::string_view& line, std::string& word)
{
    while (!line.empty()) {
        char c = line.front();
        line.remove_prefix(1);
        if (c == '"')
            return true;
        if (c == '\\' && !line.empty() && (line.front() == '"' || line.front() == '\\')) {
            c = line.front();
            line.remove_prefix(1);
        }
        word += c;
    }
    return false;
}

bool TakeWord(std::string_view& line, std::string& word)
{
    while (!line.empty() && !IsBlank(line.front())) {
        const char c = line.front();
        line.remove_prefix(1);
        if (c != '"')
            word += c;
        else if (!TakeQuoted(line, word))
            return false;
    }
    return true;
}

} // namespace

bool SplitWords(std::string_view line, std::vector<std::string>& words, std::string& trouble)
{
    words.clear();
    for (;;) {
        while (!line.empty() && IsBlank(line.front()))
            line.remove_prefix(1);
        if (line.empty() || line.front() == '#')
            return true;
        std::string word;
        if (!TakeWord(line, word)) {
            trouble = "a quote is not closed";
            return false;
        }
        words.push_back(std::move(word));
    }
}

} // namespace editor
