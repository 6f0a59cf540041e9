#include "QsvDevice.h"

namespace Probe
{

std::array<const char*, 3> QsvDevice::LibraryNames()
{
    return {"libvpl.dll", "libmfx64-gen.dll", "libmfxhw64.dll"};
}

QsvDevice::QsvDevice() : va(""), vaDrm("") {}

QsvDevice::~QsvDevice() = default;

} // namespace Probe
