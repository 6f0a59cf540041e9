#include "OwnPath.h"

std::filesystem::path OwnPath()
{
    return std::filesystem::canonical("/proc/self/exe");
}
