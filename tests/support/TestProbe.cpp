// A probe whose behaviour the name of the implementation says: "usable", "unusable", "absent",
// "exit", "crash", "rubbish", "twice", "silent", "flood", "hang", "fork". It leaves a file
// "<its own path>.<codec>.<implementation>" behind.
#include "OwnPath.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <string>
#include <thread>

namespace
{

[[noreturn]] void Hang()
{
    std::this_thread::sleep_for(std::chrono::minutes(10));
    std::exit(1);
}

void Flood()
{
    const std::string block(1 << 20, 'x');
    for (int i = 0; i < 1024 && std::fwrite(block.data(), block.size(), 1, stdout) == 1; ++i)
        continue;
}

const std::map<std::string, const char*> answers{{"usable", "usable\n"},
    {"unusable", "unusable: no memory\n"}, {"absent", "not present"}, {"exit", "usable\n"},
    {"rubbish", "\x01\xff?"}, {"twice", "usable\nusable\n"}, {"silent", ""}};

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3)
        Hang(); // started by "fork"
    const std::string behaviour = argv[2];
    std::ofstream(OwnPath().string() + '.' + argv[1] + '.' + behaviour);
    if (behaviour == "crash")
        Crash();
    if (behaviour == "flood")
        Flood();
    if (behaviour == "fork")
        StartAgain("hang");
    if (behaviour == "fork" || behaviour == "hang")
        Hang();
    std::fputs(answers.at(behaviour), stdout);
    return behaviour == "exit" ? 3 : 0;
}
