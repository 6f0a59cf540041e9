#pragma once

#include "Library.h"

#include <array>

namespace Probe
{

// What a session has to be given to find the hardware: a VA-API display on Linux, nothing on
// Windows.
class QsvDevice
{
public:
    // The dispatcher, then the runtimes themselves: all have the same entry points.
    static std::array<const char*, 3> LibraryNames();

    QsvDevice();
    QsvDevice(const QsvDevice&) = delete;
    QsvDevice& operator=(const QsvDevice&) = delete;
    ~QsvDevice();

    // The display, or null.
    void* Handle() const { return display; }

private:
    Library va;
    Library vaDrm;
    int file = -1;
    void* display = nullptr;
};

} // namespace Probe
