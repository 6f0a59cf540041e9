#include "DefaultApps.h"

#include <atomic>
#include <fstream>

#include <QString>

#include <Pal.h>
#include <shobjidl.h>

#include "../Machine.h"
#include "ComFaults.h"

namespace Pal
{

namespace
{

constexpr IID activationManagerId = {
    0x2E941141, 0x7F97, 0x4756, {0xBA, 0x1D, 0x9D, 0xEC, 0xDE, 0x89, 0x4A, 0x3D}};
constexpr IID associationRegistrationId = {
    0x4E530B0A, 0xE611, 0x4C77, {0xA3, 0xAC, 0x90, 0x31, 0xD0, 0x22, 0x28, 0x1B}};

// An object of one interface that counts its references.
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
    ULONG AddRef() override { return ++m_references; }
    ULONG Release() override
    {
        const ULONG left = --m_references;
        if (left == 0)
            delete this;
        return left;
    }

private:
    std::atomic<ULONG> m_references = 1;
};

HRESULT WriteDown(const char* what, LPCWSTR subject, LPCWSTR details)
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
    // Differs: nothing is started; the request is written down.
    // Refuses: no application id, and no place for the process id.
    HRESULT ActivateApplication(
        LPCWSTR appId, LPCWSTR arguments, ACTIVATEOPTIONS, DWORD* processId) override
    {
        if (const auto fault = InjectedResult("IApplicationActivationManager::ActivateApplication"))
            return *fault;
        if (!appId || !processId)
            return E_INVALIDARG;
        *processId = 0;
        return WriteDown("activate", appId, arguments);
    }

    // Refuses: these, which nobody calls.
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
    // Differs: nothing changes; the request is written down, whether or not the application is
    // known. Refuses: no name, no extension, and what is no extension.
    HRESULT SetAppAsDefault(LPCWSTR appName, LPCWSTR set, ASSOCIATIONTYPE type) override
    {
        if (const auto fault =
                InjectedResult("IApplicationAssociationRegistration::SetAppAsDefault"))
            return *fault;
        if (!appName || !set || type != AT_FILEEXTENSION)
            return E_INVALIDARG;
        return WriteDown("default", appName, set);
    }

    // Refuses: these, which nobody calls.
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
