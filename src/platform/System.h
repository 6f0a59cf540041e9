#pragma once

#include "platform/Path.h"
#include "platform/Version.h"

#include <QString>

#include <string>

namespace Vorlan
{

namespace Core
{

// Whether the running Windows is at least that version; its true version, whatever the program's
// manifest says.
bool IsGreaterOrEqualThen(const Version& version);

// Whether a process of that image name runs; with a path, whether one of that executable does. Both
// UTF-8, compared without regard to case.
bool IsProcessRunning(const std::string& imageName, const std::string& path);

// Whether the system runs from a solid-state drive, and whether a folder (UTF-8; its nearest
// existing ancestor) lies on one. Unknown counts as no.
bool IsRunningOnSSD();
bool IsPathOnSSD(const std::string& path);

// Where the product's components lie below the installation folder.
class AppLocations
{
public:
    static const AppLocations& GetLocations();
    virtual ~AppLocations() = default;

    // The component's program relative to the installation folder.
    virtual ioPath GetLocation(const std::string& component) const;

protected:
    AppLocations() = default;
};

} // namespace Core

namespace Util
{

// The SHA-1 digest in lower-case hexadecimal digits.
std::string SHA1(const std::string& text);

// The address to open for an address; it is given back as it is.
QString ReplaceUrlProtocol(QString url);

} // namespace Util

namespace Platform
{

// A shell folder by its CSIDL, without a trailing separator; empty when the system does not know it
// or it is longer than 259 characters.
QString ShellFolder(int csidl);

// Identifies this machine: "/etc/machine-id" on Linux, the registry's "MachineGuid" on
// Windows; empty when there is none. Leaves the machine only as part of a hash.
std::string MachineId();

// Whether a library's static objects may initialise other libraries and start threads: they may not
// where the system's loader holds a lock meanwhile.
bool MaySetUpWhileLoading();

// Whether the whole process ends, and not only the library is unloaded: other threads have ended
// already.
bool IsProcessEnding();

// Keeps the library that holds this code loaded to the end of the process, for threads that nobody
// waits for.
void KeepLibraryLoaded();

// The product's log folder, without a separator at its end; it need not exist. Empty where the
// machine has no local application-data folder.
QString LogFolder();

} // namespace Platform

} // namespace Vorlan
