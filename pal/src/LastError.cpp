#include "LastError.h"

namespace
{

thread_local DWORD lastError = ERROR_SUCCESS;

} // namespace

// Keeps:   each thread has its own; success leaves it as it is unless a function says otherwise.
DWORD GetLastError()
{
    return lastError;
}

// Keeps:   sets the calling thread's last error only.
void SetLastError(DWORD error)
{
    lastError = error;
}

BOOL Pal::Failed(DWORD error)
{
    SetLastError(error);
    return FALSE;
}
