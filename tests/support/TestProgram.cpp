// A program that tests start under many names. It writes its arguments, one per line, into
// "<its own path>.args", and then does what "<its own path>.does" says:
//   wait      runs until somebody ends it (or ten minutes have passed)
//   exit <n>  ends with that code
//   clean     deletes the files beside it, itself and its notes aside
// Without such a file it ends with 0.
#include "OwnPath.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

namespace fs = std::filesystem;

namespace
{

fs::path WithSuffix(fs::path path, const char* suffix)
{
    return path += suffix;
}

void WriteArguments(const fs::path& file, int argc, char** argv)
{
    const fs::path part = WithSuffix(file, ".part");
    std::ofstream notes(part, std::ios::binary);
    for (int i = 1; i < argc; ++i)
        notes << argv[i] << '\n';
    notes.close();
    fs::rename(part, file);
}

void DeleteFilesBeside(const fs::path& program)
{
    for (const auto& entry : fs::directory_iterator(program.parent_path()))
    {
        if (entry.is_regular_file() && entry.path().native().rfind(program.native(), 0) != 0)
            fs::remove(entry.path());
    }
}

} // namespace

int main(int argc, char** argv)
{
    const fs::path program = OwnPath();
    WriteArguments(WithSuffix(program, ".args"), argc, argv);
    std::ifstream orders(WithSuffix(program, ".does"));
    std::string order;
    int exitCode = 0;
    orders >> order >> exitCode;
    if (order == "wait")
        std::this_thread::sleep_for(std::chrono::minutes(10));
    if (order == "clean")
        DeleteFilesBeside(program);
    return exitCode;
}
