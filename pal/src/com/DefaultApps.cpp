#include "com/DefaultApps.h"

#include "Machine.h"
#include "com/ComFaults.h"

#include <QString>

#include <Pal.h>
#include <shobjidl.h>

#include <atomic>
#include <fstream>

namespace Pal
{

namespace
{

constexpr IID activationManagerId = {
    0x2E941141, 0x7F97, 0x4756, {0xBA, 0x1D, 0x9D, 0xEC, 0xDE, 0x89, 0x4A, 0x3D}};
constexpr IID associationRegistrationId = {
    0x4E530B0A, 0xE611, 0x4C77, {0xA3, 0xAC, 0x90, 0x31, 0xD0, 0x22, 0x28, 0x1B}};

// An object with one interface and a reference count.
template <typename Interface, const IID& iid>
class Object : public Interface
{
public:
    virtual ~Object() = default;

    HRESULT QueryInterface(REFIID wanted, void** object) override
    {
        if (!object)
            return E_POINTER;
        const bool isKnown = wanted == IID_IUnknown || wanted == iid;
        *object = isKnown ? static_cast<Interface*>(this) : nullptr;
        if (isKnown)
            AddRef();
        return isKnown ? S_OK : E_NOINTERFACE;
    }
    ULONG AddRef() override { return ++references; }
    ULONG Release() override
    {
        const ULONG left = --references;
        if (left == 0)
            delete this;
        return left;
    }

private:
    std::atomic<ULONG> references = 1;
};

HRESULT Record(const char* what, LPCWSTR subject, LPCWSTR details)
{
    const std::filesystem::path root = MachineRoot();
    CreateMachine(root);
    std::ofstream file(root / "default-apps.txt", std::ios::app);
    file << what << '\t' << QString::fromWCharArray(subject).toStdString() << '\t'
         << QString::fromWCharArray(details ? details : L"").toStdString() << std::endl;
    return file ? S_OK : HRESULT_FROM_WIN32(ERROR_ACCESS_DENIED);
}

class ActivationManager final : public Object<IApplicationActivationManager, activationManagerId>
{
public:
    // Keeps:   S_OK with a process id.
    // Differs: nothing is started and the id is 0; the request is recorded.
    // Refuses: a null application id or result pointer.
    HRESULT ActivateApplication(
        LPCWSTR appId, LPCWSTR arguments, ACTIVATEOPTIONS, DWORD* processId) override
    {
        if (const auto fault = InjectedResult("IApplicationActivationManager::ActivateApplication"))
            return *fault;
        if (!appId || !processId)
            return E_INVALIDARG;
        *processId = 0;
        return Record("activate", appId, arguments);
    }

    // Refuses: the methods below, which the engine does not call.
    HRESULT ActivateForFile(LPCWSTR, IShellItemArray*, LPCWSTR, DWORD*) override
    {
        return E_NOTIMPL;
    }
    HRESULT ActivateForProtocol(LPCWSTR, IShellItemArray*, DWORD*) override { return E_NOTIMPL; }
};

class AssociationRegistration final
    : public Object<IApplicationAssociationRegistration, associationRegistrationId>
{
public:
    // Keeps:   S_OK for an application and an extension.
    // Differs: nothing changes; the request is recorded, whether or not the application exists.
    // Refuses: a null name or extension, and every other association type.
    HRESULT SetAppAsDefault(LPCWSTR appName, LPCWSTR set, ASSOCIATIONTYPE type) override
    {
        if (const auto fault =
                InjectedResult("IApplicationAssociationRegistration::SetAppAsDefault"))
            return *fault;
        if (!appName || !set || type != AT_FILEEXTENSION)
            return E_INVALIDARG;
        return Record("default", appName, set);
    }

    // Refuses: the methods below, which the engine does not call.
    HRESULT QueryCurrentDefault(LPCWSTR, ASSOCIATIONTYPE, ASSOCIATIONLEVEL, LPWSTR*) override
    {
        return E_NOTIMPL;
    }
    HRESULT QueryAppIsDefault(LPCWSTR, ASSOCIATIONTYPE, ASSOCIATIONLEVEL, LPCWSTR, BOOL*) override
    {
        return E_NOTIMPL;
    }
    HRESULT QueryAppIsDefaultAll(ASSOCIATIONLEVEL, LPCWSTR, BOOL*) override { return E_NOTIMPL; }
    HRESULT SetAppAsDefaultAll(LPCWSTR) override { return E_NOTIMPL; }
    HRESULT ClearUserAssociations() override { return E_NOTIMPL; }
};

} // namespace

IUnknown* MakeActivationManager()
{
    return new ActivationManager;
}

IUnknown* MakeAssociationRegistration()
{
    return new AssociationRegistration;
}

} // namespace Pal
