#include "foundation/SystemError.h"

namespace Vorlan::Platform
{

DWORD FileError()
{
    return GetLastError();
}

} // namespace Vorlan::Platform
