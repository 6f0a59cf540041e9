// System calls for process descriptors. The system's header lacks the linkage specification for
// C++.
#pragma once

extern "C"
{
#include <sys/pidfd.h>
}
