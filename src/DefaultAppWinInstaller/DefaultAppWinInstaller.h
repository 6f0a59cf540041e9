#pragma once

#include <string>

class QString;
class QStringList;

namespace Vorlan
{

// Categories of default applications.
enum class AppType : int
{
    None = 0,
    Video = 1,
    Audio = 2
};

// Lets the user make a product the default application for its file extensions, which no program
// may decide silently. From Windows 10 on it opens the page of the Settings application and clicks
// the category's button there; from Windows 7 on it runs the association registrator elevated and
// then asks Windows for each extension. It does not wait for the user's choice. Failures of COM end
// a step silently; an unknown type throws Vorlan::Exception before anything is opened.
// applicationName: the name under which the product is registered with Windows.
void SetDefaultApplication(AppType type, const QStringList& extensions,
    const QString& applicationName, const QString& installDir);

// The pattern with its "%ls" replaced by the type's name on the Settings page. Throws
// Vorlan::Exception for a type without a name.
std::wstring PrintAppTypeToString(const std::wstring& pattern, AppType type);

// Opens the page of default applications at the type's entry. With clickButton the entry's button
// is clicked as soon as it gets the focus. COM stays initialised on the calling thread, because the
// handler that waits for the button outlives the call.
void OpenDefaultAppsSettings(AppType type, bool clickButton);

// Where the association registrator of an installation lies.
QString GetAssociationRegistratorPath(const QString& installDir);

// Runs the association registrator elevated and waits for its end; remove takes back what it
// registered. Does nothing where it cannot be started.
void RunAssociationRegistrator(const QString& installDir, bool remove);

// Asks Windows to make the product the default for each extension, such as ".mp4".
void SetAppAsDefaultForExtensions(const QStringList& extensions, const QString& applicationName);

} // namespace Vorlan
