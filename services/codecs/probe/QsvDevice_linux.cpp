#include "QsvDevice.h"

#include <fcntl.h>
#include <unistd.h>

namespace Probe
{

namespace
{

// VA-API's entry points, as its interface publishes them; a status of 0 is success.
using VaGetDisplayDRM = void*(int file);
using VaInitialize = int(void* display, int* major, int* minor);
using VaTerminate = int(void* display);

constexpr char renderNode[] = "/dev/dri/renderD128";

} // namespace

std::array<const char*, 3> QsvDevice::LibraryNames()
{
    return {"libvpl.so.2", "libmfx-gen.so.1.2", "libmfxhw64.so.1"};
}

QsvDevice::QsvDevice()
    : va("libva.so.2"), vaDrm("libva-drm.so.2"), file(open(renderNode, O_RDWR | O_CLOEXEC))
{
    auto* const getDisplay = vaDrm.Find<VaGetDisplayDRM>("vaGetDisplayDRM");
    auto* const initialize = va.Find<VaInitialize>("vaInitialize");
    if (file < 0 || !getDisplay || !initialize)
        return;
    display = getDisplay(file);
    int major = 0;
    int minor = 0;
    if (display && initialize(display, &major, &minor) != 0)
        display = nullptr;
}

QsvDevice::~QsvDevice()
{
    auto* const terminate = va.Find<VaTerminate>("vaTerminate");
    if (display && terminate)
        terminate(display);
    if (file >= 0)
        close(file);
}

} // namespace Probe
