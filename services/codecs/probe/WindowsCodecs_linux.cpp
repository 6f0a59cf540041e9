// What only Windows has.
#include "Implementations.h"

namespace Probe
{

namespace
{

Answer OnlyOnWindows()
{
    return NotPresent("belongs to another system");
}

} // namespace

Answer TryDirectX(const std::string&)
{
    return OnlyOnWindows();
}

Answer TryMediaFoundation(const std::string&)
{
    return OnlyOnWindows();
}

// The runtime works on Vulkan here; this probe opens it over Direct3D only.
Answer TryAmf(const std::string&)
{
    return NotPresent("tried on Windows only");
}

} // namespace Probe
