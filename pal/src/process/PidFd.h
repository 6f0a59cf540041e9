// The system's calls on processes by descriptor. Its header forgets to say that they are C.
#pragma once

extern "C"
{
#include <sys/pidfd.h>
}
