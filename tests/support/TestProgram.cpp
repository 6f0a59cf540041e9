// A program that tests start under many names. The first word of its orders says what it does:
//   exit <n>                  ends with that code
//   wait                      runs until somebody ends it (or ten minutes have passed)
//   stay                      the same, also when it is asked to end
//   until <file>              runs until this file beside it exists (or ten minutes have passed)
//   print <word>              writes the word to standard output and standard error
//   report <file> <word>...   writes the current folder and the words into the file, a line each
//   clean                     deletes the files beside it, itself and its notes aside
// Its orders are its arguments, unless there is a file "<its own path>.does" with others: then it
// first writes its arguments, one per line, into "<its own path>.args".
#include "OwnPath.h"

#include <chrono>
#include <csignal>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

namespace fs = std::filesystem;
using Words = std::vector<std::string>;

namespace
{

fs::path WithSuffix(fs::path path, const char* suffix)
{
    return path += suffix;
}

int WriteLines(std::ofstream out, const Words& lines)
{
    for (const std::string& line : lines)
        out << line << '\n';
    return out.flush() ? 0 : 1;
}

// Complete as soon as it can be seen.
void WriteNotes(const fs::path& file, const Words& arguments)
{
    const fs::path part = WithSuffix(file, ".part");
    WriteLines(std::ofstream(part, std::ios::binary), arguments);
    fs::rename(part, file);
}

int DeleteFilesBeside(const fs::path& program)
{
    for (const auto& entry : fs::directory_iterator(program.parent_path()))
    {
        if (entry.is_regular_file() && entry.path().native().rfind(program.native(), 0) != 0)
            fs::remove(entry.path());
    }
    return 0;
}

int Print(const std::string& word)
{
    std::cout << word << std::flush;
    std::cerr << word << std::flush;
    return 0;
}

int WaitFor(const fs::path& file)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(10);
    while (!fs::exists(file) && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    return 0;
}

int Obey(const Words& orders, const fs::path& program)
{
    const std::string order = orders.empty() ? "" : orders.front();
    if (order == "wait" || order == "stay")
        std::this_thread::sleep_for(std::chrono::minutes(10));
    if (order == "until")
        return WaitFor(program.parent_path() / orders.at(1));
    if (order == "clean")
        return DeleteFilesBeside(program);
    if (order == "exit")
        return std::stoi(orders.at(1));
    if (order == "print")
        return Print(orders.at(1));
    if (order != "report")
        return 99;
    Words lines(orders.begin() + 1, orders.end());
    lines.front() = fs::current_path().generic_string();
    return WriteLines(std::ofstream(orders.at(1), std::ios::binary), lines);
}

} // namespace

int main(int argc, char** argv)
{
    const fs::path program = OwnPath();
    Words orders(argv + 1, argv + argc);
    if (std::ifstream file(WithSuffix(program, ".does")); file)
    {
        const Words arguments = orders;
        orders.assign(std::istream_iterator<std::string>(file), {});
        if (!orders.empty() && orders.front() == "stay")
            std::signal(SIGTERM, SIG_IGN);
        WriteNotes(WithSuffix(program, ".args"), arguments);
    }
    return Obey(orders, program);
}
