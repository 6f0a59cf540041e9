// What this layer offers beyond Windows: the machine root, injected faults, open handles.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <objbase.h>
#include <windows.h>

namespace Pal
{

// The root folder of the machine: $VORLAN_MACHINE, else $XDG_DATA_HOME/vorlan-machine, else
// ~/.local/share/vorlan-machine. The environment is read at every call. The folder need not exist:
// the first registry or shell-folder call creates it.
std::filesystem::path MachineRoot();

// Makes one call of a function of this layer fail during the object's lifetime. Calls are counted
// from its construction, over all threads. A Reg function returns the error; any other function
// sets it as the last error and returns its failure value. The failing call changes nothing, except
// that CloseHandle and RegCloseKey do close the handle before they report the error.
// COM functions and methods return the error as an HRESULT, and may be given one; a method is named
// with the interface that declares it, as "IShellLinkW::SetPath". Functions that cannot fail are
// not counted: GetLastError, SetLastError, AddRef, Release, CoUninitialize
// and those of oleauto.h.
class ScopedFault
{
public:
    enum class Expect
    {
        MustFire,
        MayStayUnused
    };

    // function: its Windows name, or "*" for a call of any function.
    // callNumber: which call fails; 1 is the first.
    ScopedFault(const char* function, DWORD error, unsigned callNumber = 1,
        Expect expect = Expect::MustFire);
    // Calls the handler below for a fault that must fire and did not.
    ~ScopedFault();
    ScopedFault(const ScopedFault&) = delete;
    ScopedFault& operator=(const ScopedFault&) = delete;

    bool Fired() const;

    struct State; // defined in the layer's sources

private:
    const std::unique_ptr<State> state;
};

// Called with a text that describes the fault. Without a handler (nullptr) the text is written to
// the standard error output and the program aborts.
void SetUnusedFaultHandler(std::function<void(const std::string&)> handler);

// Registers a class with CoCreateInstance for the object's lifetime. Of several registrations of
// one class, and of the layer's own class, the latest is used.
class ScopedClass
{
public:
    // factory: returns an object with one reference, which CoCreateInstance releases.
    ScopedClass(REFCLSID classId, std::function<IUnknown*()> factory);
    ~ScopedClass();
    ScopedClass(const ScopedClass&) = delete;
    ScopedClass& operator=(const ScopedClass&) = delete;

    struct State; // defined in the layer's sources

private:
    const std::unique_ptr<State> state;
};

// The Windows error for an errno value; ERROR_GEN_FAILURE for a value without a counterpart.
DWORD ErrorFromErrno(int systemError);

// The names of this process's open handles, sorted: the path of a file or key, the number of a
// process, the name of a mutex.
std::vector<std::string> OpenHandles();

} // namespace Pal
