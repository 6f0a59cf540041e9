#include "com/Classes.h"

#include "com/DefaultApps.h"
#include "com/ShellLink.h"

#include <Pal.h>
#include <shlobj.h>

#include <algorithm>
#include <cstring>
#include <mutex>
#include <vector>

namespace Pal
{

struct ScopedClass::State
{
    const CLSID classId;
    const ClassFactory factory;
};

namespace
{

struct ClassList
{
    std::mutex mutex;
    std::vector<ScopedClass::State*> registered;
};

ClassList& Classes()
{
    static ClassList& classes =
        *new ClassList; // never destroyed: calls may come from static destructors
    return classes;
}

} // namespace

ScopedClass::ScopedClass(REFCLSID classId, std::function<IUnknown*()> factory)
    : state(new State{classId, std::move(factory)})
{
    const std::lock_guard lock(Classes().mutex);
    Classes().registered.push_back(state.get());
}

ScopedClass::~ScopedClass()
{
    const std::lock_guard lock(Classes().mutex);
    auto& registered = Classes().registered;
    registered.erase(std::find(registered.begin(), registered.end(), state.get()));
}

std::optional<ClassFactory> FindClass(REFCLSID classId)
{
    const std::lock_guard lock(Classes().mutex);
    const auto& registered = Classes().registered;
    const auto found = std::find_if(registered.rbegin(), registered.rend(),
        [&classId](const ScopedClass::State* state) { return state->classId == classId; });
    if (found != registered.rend())
        return (*found)->factory;
    if (classId == CLSID_ShellLink)
        return ClassFactory(MakeShellLink);
    if (classId == activationManagerClass)
        return ClassFactory(MakeActivationManager);
    if (classId == associationRegistrationClass)
        return ClassFactory(MakeAssociationRegistration);
    return std::nullopt;
}

} // namespace Pal

bool operator==(REFGUID first, REFGUID second)
{
    return std::memcmp(&first, &second, sizeof(GUID)) == 0;
}

bool operator!=(REFGUID first, REFGUID second)
{
    return !(first == second);
}
