#include "foundation/SystemError.h"

#include <Pal.h>

#include <cerrno>

namespace Vorlan::Platform
{

DWORD FileError()
{
    return Pal::ErrorFromErrno(errno);
}

} // namespace Vorlan::Platform
