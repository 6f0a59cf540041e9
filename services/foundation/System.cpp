#include "platform/System.h"

#include "base/ProductProfile.h"
#include "platform/Path.h"

#include <QCryptographicHash>
#include <QDir>

#include <shlobj.h>
#include <windows.h>

namespace Vorlan
{

namespace Core
{

const AppLocations& AppLocations::GetLocations()
{
    struct Locations : AppLocations
    {
    };
    static const Locations locations;
    return locations;
}

ioPath AppLocations::GetLocation(const std::string& component) const
{
    return ioPath(component + ".exe");
}

} // namespace Core

namespace Util
{

std::string SHA1(const std::string& text)
{
    const QByteArray digest =
        QCryptographicHash::hash(QByteArray::fromStdString(text), QCryptographicHash::Sha1);
    return digest.toHex().toStdString();
}

QString ReplaceUrlProtocol(QString url)
{
    return url;
}

} // namespace Util

namespace Platform
{

QString ShellFolder(int csidl)
{
    wchar_t buffer[MAX_PATH] = {};
    SHGetSpecialFolderPathW(nullptr, buffer, csidl, FALSE);
    return TextFromWide(buffer);
}

QString LogFolder()
{
    const QChar separator = QDir::separator();
    QString folder = ShellFolder(CSIDL_LOCAL_APPDATA);
    if (folder.isEmpty())
        return folder; // else the folder would lie in the root of a drive
    if (!folder.endsWith(separator))
        folder += separator;
    return folder + ProductProfile::companyName + separator + "Logs" + separator +
           ProductProfile::applicationKey;
}

} // namespace Platform

} // namespace Vorlan
