// Splits command lines by the rules of Windows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Pal
{

// The words that a program receives, by the rules of the C run-time library: inside quotes, two
// quotes are a literal one; in the first word, which names the program, backslashes are always
// literal. CommandLineToArgvW differs: two quotes inside quotes are a literal one and end the
// quoted part, and in the first word only a leading quote counts.
enum class FirstWord
{
    NamesProgram,
    IsArgument
};
std::vector<std::wstring> SplitCommandLine(std::wstring_view commandLine, FirstWord firstWord);

// What may name the program: the shortest text first, each with what follows it. An unquoted name
// may hold blanks, so every blank is a possible end.
struct ProgramName
{
    std::wstring_view name;
    std::wstring_view rest;
};
std::vector<ProgramName> PossiblePrograms(std::wstring_view commandLine);

} // namespace Pal
