#include "DefaultAppWinInstaller/DefaultAppWinInstaller.h"

#include "DefaultAppWinInstaller/FocusChangedEvendHandler.h"
#include "base/Com.h"
#include "base/Handle.h"
#include "platform/Exception.h"
#include "platform/Path.h"
#include "platform/System.h"
#include "platform/Version.h"

#include <QDir>
#include <QStringList>

#include <shellapi.h>
#include <shobjidl.h>

#include <map>

namespace Vorlan
{

namespace
{

using namespace UiAutomation;

constexpr Core::Version windows10 = {10, 0, 0};
constexpr Core::Version windows7 = {6, 1, 0};

constexpr wchar_t settingsAppId[] = L"windows.immersivecontrolpanel_cw5n1h2txyewy!"
                                    L"microsoft.windows.immersivecontrolpanel";
constexpr wchar_t settingsPage[] = L"page=SettingsPageAppsDefaults";
constexpr wchar_t settingsTarget[] = L"page=SettingsPageAppsDefaults&target=%ls";
constexpr wchar_t buttonId[] = L"%ls_Button";
constexpr wchar_t placeholder[] = L"%ls";
constexpr char registratorName[] = "AssociationRegistrator";
constexpr wchar_t removalArgument[] = L"-del";

// Windows SDK, ShObjIdl.h.
constexpr CLSID activationManagerClass = {
    0x45BA127D, 0x10A8, 0x46EA, {0x8A, 0xB7, 0x56, 0xEA, 0x90, 0x78, 0x94, 0x3C}};
constexpr IID activationManagerId = {
    0x2E941141, 0x7F97, 0x4756, {0xBA, 0x1D, 0x9D, 0xEC, 0xDE, 0x89, 0x4A, 0x3D}};
constexpr CLSID associationRegistrationClass = {
    0x591209C7, 0x767B, 0x42B2, {0x9F, 0xBA, 0x44, 0xEE, 0x46, 0x15, 0xF2, 0xC7}};
constexpr IID associationRegistrationId = {
    0x4E530B0A, 0xE611, 0x4C77, {0xA3, 0xAC, 0x90, 0x31, 0xD0, 0x22, 0x28, 0x1B}};

// The names of the entries on the Settings page.
const std::map<AppType, std::wstring> g_AppTypeNames = {
    {AppType::None, L""},
    {AppType::Video, L"SystemSettings_DefaultApps_Video"},
    {AppType::Audio, L"SystemSettings_DefaultApps_Audio"},
};

template <typename Interface>
Platform::ComPointer<Interface> Create(const CLSID& classId, DWORD context, const IID& iid)
{
    Platform::ComPointer<Interface> object;
    if (FAILED(CoCreateInstance(classId, nullptr, context, iid, object.Put())))
        object.Reset();
    return object;
}

// UI Automation holds the handler from here on.
void ClickWhenFocused(const std::wstring& button)
{
    if (FAILED(CoInitialize(nullptr)))
        return;
    const auto automation =
        Create<IUIAutomation>(classCUIAutomation, CLSCTX_INPROC_SERVER, idIUIAutomation);
    if (!automation)
        return;
    auto* const handler = new FocusChangedEvendHandler(button, automation.Get());
    automation->AddFocusChangedEventHandler(nullptr, handler);
    handler->Release();
}

} // namespace

std::wstring PrintAppTypeToString(const std::wstring& pattern, AppType type)
{
    const auto name = g_AppTypeNames.find(type);
    if (name == g_AppTypeNames.end())
    {
        throw Exception() << ExceptionMessage("Not found specified AppType in g_AppTypeNames. "
                                              "Possible forgot to add.")
                          << ExceptionCallStack(GetCallStack())
                          << boost::throw_function("PrintAppTypeToString")
                          << boost::throw_file("DefaultAppWinInstaller.cpp")
                          << boost::throw_line(__LINE__);
    }
    std::wstring text = pattern;
    const auto place = text.find(placeholder);
    return place == std::wstring::npos
               ? text
               : text.replace(place, std::size(placeholder) - 1, name->second);
}

void OpenDefaultAppsSettings(AppType type, bool clickButton)
{
    const std::wstring target = PrintAppTypeToString(settingsTarget, type);
    const std::wstring button = PrintAppTypeToString(buttonId, type);
    if (clickButton)
        ClickWhenFocused(button);

    const auto manager = Create<IApplicationActivationManager>(
        activationManagerClass, CLSCTX_ALL, activationManagerId);
    if (!manager)
        return;
    CoAllowSetForegroundWindow(manager.Get(), nullptr);
    DWORD processId = 0;
    if (SUCCEEDED(manager->ActivateApplication(settingsAppId, settingsPage, AO_NONE, &processId)))
        manager->ActivateApplication(settingsAppId, target.c_str(), AO_NONE, &processId);
}

QString GetAssociationRegistratorPath(const QString& installDir)
{
    const ioPath location = Core::AppLocations::GetLocations().GetLocation(registratorName);
    return installDir + QDir::separator() + QString::fromUtf8(location.utf8string().c_str());
}

void RunAssociationRegistrator(const QString& installDir, bool remove)
{
    const std::wstring program = Platform::WideFromText(GetAssociationRegistratorPath(installDir));
    SHELLEXECUTEINFOW info = {};
    info.cbSize = sizeof info;
    // Without the second flag Windows would show a box where the program is missing.
    info.fMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_FLAG_NO_UI;
    info.lpVerb = L"runas";
    info.lpFile = program.c_str();
    info.lpParameters = remove ? removalArgument : L"";
    info.nShow = SW_SHOW;
    if (!ShellExecuteExW(&info))
        return;
    const Platform::UniqueProcess process(info.hProcess);
    WaitForSingleObject(process.Get(), INFINITE);
}

void SetAppAsDefaultForExtensions(const QStringList& extensions, const QString& applicationName)
{
    Platform::ComApartment apartment; // outlives the reference below
    if (!apartment.Initialise())
        return;
    const auto registration = Create<IApplicationAssociationRegistration>(
        associationRegistrationClass, CLSCTX_INPROC, associationRegistrationId);
    if (!registration)
        return;
    const std::wstring name = Platform::WideFromText(applicationName);
    for (const QString& extension : extensions)
        registration->SetAppAsDefault(
            name.c_str(), Platform::WideFromText(extension).c_str(), AT_FILEEXTENSION);
}

void SetDefaultApplication(AppType type, const QStringList& extensions,
    const QString& applicationName, const QString& installDir)
{
    if (Core::IsGreaterOrEqualThen(windows10))
    {
        OpenDefaultAppsSettings(type, true);
    }
    else if (Core::IsGreaterOrEqualThen(windows7))
    {
        RunAssociationRegistrator(installDir, false);
        SetAppAsDefaultForExtensions(extensions, applicationName);
    }
}

} // namespace Vorlan
