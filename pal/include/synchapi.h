// Waiting and named mutexes, for C and C++. What each call keeps, changes and refuses is documented
// at its definition.
#ifndef PAL_SYNCHAPI_H
#define PAL_SYNCHAPI_H

#include <windef.h>

#ifdef __cplusplus
extern "C"
{
#endif

#define INFINITE 0xFFFFFFFFu
#define WAIT_OBJECT_0 0
#define WAIT_TIMEOUT 258
#define WAIT_FAILED 0xFFFFFFFFu

    DWORD WINAPI WaitForSingleObject(HANDLE object, DWORD milliseconds);
    HANDLE WINAPI CreateMutexW(
        LPSECURITY_ATTRIBUTES mutexAttributes, BOOL initialOwner, LPCWSTR name);

#ifdef __cplusplus
}
#endif

#endif
