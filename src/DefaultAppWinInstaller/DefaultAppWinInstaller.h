#pragma once

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

// Makes a product the default application for its file extensions, as far as the system lets it.
void SetDefaultApplication(AppType type, const QStringList& extensions,
    const QString& applicationName, const QString& installDir);

} // namespace Vorlan
