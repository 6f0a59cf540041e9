// The Windows interface on Linux, as far as the engine calls it: nothing more is here, and a flag
// or argument that this layer does not honour is refused with an error code.
#ifndef PAL_WINDOWS_H
#define PAL_WINDOWS_H

#include <fileapi.h>
#include <processthreadsapi.h>
#include <synchapi.h>
#include <windef.h>
#include <winerror.h>
#include <winreg.h>

#endif
