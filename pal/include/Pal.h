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

// The folder that stands for the whole machine: $VORLAN_MACHINE, else
// $XDG_DATA_HOME/vorlan-machine, else ~/.local/share/vorlan-machine. The environment is read at
// every call. The folder need not exist yet: the first registry or shell-folder call creates it.
std::filesystem::path MachineRoot();

// Makes one call of a function of this layer fail while the object lives. Calls are counted from
// its construction, over all threads. A Reg function returns the error; any other function sets it
// as the last error and returns its failure value. The failing call changes nothing, except that
// CloseHandle and RegCloseKey do close the handle before they report the error.
// COM functions and methods return the error as an HRESULT, and may be given one; a method is named
// with the interface that declares it, as "IShellLinkW::SetPath". What cannot fail is not counted:
// GetLastError, SetLastError, AddRef, Release, CoUninitialize, CoTaskMemFree.
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
    // Hands a fault that must fire and did not to the handler below.
    ~ScopedFault();
    ScopedFault(const ScopedFault&) = delete;
    ScopedFault& operator=(const ScopedFault&) = delete;

    bool Fired() const;

    struct State; // known to the layer's sources only

private:
    const std::unique_ptr<State> m_state;
};

// Called with a text that names the fault. Without a handler (nullptr) the text goes to the
// standard error output and the program aborts.
void SetUnusedFaultHandler(std::function<void(const std::string&)> handler);

// Makes CoCreateInstance know a class while the object lives, or another object for a class that it
// knows already; of several registrations the latest counts.
class ScopedClass
{
public:
    // factory: makes an object with one reference, which becomes CoCreateInstance's.
    ScopedClass(REFCLSID classId, std::function<IUnknown*()> factory);
    ~ScopedClass();
    ScopedClass(const ScopedClass&) = delete;
    ScopedClass& operator=(const ScopedClass&) = delete;

    struct State; // known to the layer's sources only

private:
    const std::unique_ptr<State> m_state;
};

// What is open in this process: the path of each open file and key, sorted.
std::vector<std::string> OpenHandles();

} // namespace Pal
