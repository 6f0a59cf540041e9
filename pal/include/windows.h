// The part of the Windows interface that the engine calls. A flag or argument that this layer does
// not support is refused with an error code.
#ifndef PAL_WINDOWS_H
#define PAL_WINDOWS_H

#include <fileapi.h>
#include <processthreadsapi.h>
#include <synchapi.h>
#include <windef.h>
#include <winerror.h>
#include <winreg.h>

#endif
