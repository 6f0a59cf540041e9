// What the tests of processes start. The first word says what it does.
#include <condition_variable>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <mutex>

namespace
{

// The current folder and then the further words, a line each.
int Report(const char* file, int count, char** words)
{
    std::ofstream report(file);
    report << std::filesystem::current_path().generic_string() << '\n';
    for (int i = 0; i < count; ++i)
        report << words[i] << '\n';
    return report.flush() ? 0 : 1;
}

[[noreturn]] void WaitForever()
{
    std::mutex mutex;
    std::unique_lock lock(mutex);
    std::condition_variable never;
    for (;;)
        never.wait(lock);
}

bool Is(const char* word, const char* name)
{
    return std::strcmp(word, name) == 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc >= 3 && Is(argv[1], "exit"))
        return std::atoi(argv[2]);
    if (argc >= 3 && Is(argv[1], "report"))
        return Report(argv[2], argc - 3, argv + 3);
    if (argc >= 3 && Is(argv[1], "print"))
    {
        std::cout << argv[2] << std::flush;
        std::cerr << argv[2] << std::flush;
        return 0;
    }
    if (argc == 2 && Is(argv[1], "wait"))
        WaitForever();
    std::cerr
        << "usage: pal-test-child exit <code> | report <file> <word>... | print <word> | wait\n";
    return 99;
}
