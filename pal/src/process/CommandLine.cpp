#include "process/CommandLine.h"

#include <algorithm>

namespace Pal
{

namespace
{

constexpr std::wstring_view blanks = L" \t";

bool IsBlank(wchar_t character)
{
    return blanks.find(character) != blanks.npos;
}

std::wstring_view WithoutLeadingBlanks(std::wstring_view text)
{
    return text.substr(std::min(text.find_first_not_of(blanks), text.size()));
}

// The program's own word: quotes go, a backslash means nothing.
std::wstring TakeProgramWord(std::wstring_view& text)
{
    std::wstring word;
    bool quoted = false;
    while (!text.empty() && (quoted || !IsBlank(text.front())))
    {
        if (text.front() == L'"')
            quoted = !quoted;
        else
            word += text.front();
        text.remove_prefix(1);
    }
    return word;
}

// Backslashes are literal unless a quote follows them: then each pair is one backslash, and a
// remaining one makes the quote literal.
void TakeBackslashes(std::wstring_view& text, std::wstring& word)
{
    const size_t count = std::min(text.find_first_not_of(L'\\'), text.size());
    text.remove_prefix(count);
    const bool beforeQuote = !text.empty() && text.front() == L'"';
    word.append(beforeQuote ? count / 2 : count, L'\\');
    if (beforeQuote && count % 2 != 0)
    {
        word += L'"';
        text.remove_prefix(1);
    }
}

// Two quotes inside quotes stand for one.
void TakeQuote(std::wstring_view& text, std::wstring& word, bool& quoted)
{
    text.remove_prefix(1);
    if (quoted && !text.empty() && text.front() == L'"')
    {
        word += L'"';
        text.remove_prefix(1);
    }
    else
    {
        quoted = !quoted;
    }
}

std::wstring TakeArgument(std::wstring_view& text)
{
    std::wstring word;
    bool quoted = false;
    while (!text.empty() && (quoted || !IsBlank(text.front())))
    {
        if (text.front() == L'\\')
        {
            TakeBackslashes(text, word);
        }
        else if (text.front() == L'"')
        {
            TakeQuote(text, word, quoted);
        }
        else
        {
            word += text.front();
            text.remove_prefix(1);
        }
    }
    return word;
}

} // namespace

std::vector<std::wstring> SplitCommandLine(std::wstring_view commandLine, FirstWord firstWord)
{
    std::vector<std::wstring> words;
    std::wstring_view text = commandLine;
    if (firstWord == FirstWord::NamesProgram)
        words.push_back(TakeProgramWord(text));
    for (text = WithoutLeadingBlanks(text); !text.empty(); text = WithoutLeadingBlanks(text))
        words.push_back(TakeArgument(text));
    return words;
}

std::vector<ProgramName> PossiblePrograms(std::wstring_view commandLine)
{
    const std::wstring_view text = WithoutLeadingBlanks(commandLine);
    if (!text.empty() && text.front() == L'"')
    {
        const size_t end = std::min(text.find(L'"', 1), text.size());
        return {{text.substr(1, end - 1), text.substr(std::min(end + 1, text.size()))}};
    }
    std::vector<ProgramName> names;
    for (size_t end = 0; end < text.size();)
    {
        end = std::min(text.find_first_of(blanks, end + 1), text.size());
        if (!IsBlank(text[end - 1]))
            names.push_back({text.substr(0, end), text.substr(end)});
    }
    return names;
}

} // namespace Pal
