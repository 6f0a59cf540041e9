#include "WebUserId.h"

#include "identity/WebUidProvider.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>

namespace Vorlan::FrontEnd
{

QString FindWebUid(const InstallerMediator& mediator, const CommandLine& options)
{
    const QString program = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    const auto [id, found] = WebUidProvider::GetWebUid(
        mediator, {"/WEBUID=" + options.webUid}, program, false, true, {}, {});
    if (!options.webUid.isEmpty() && found.at("WI_WEBUID") != options.webUid.toStdString())
    {
        qWarning() << "Not a web user id: " << options.webUid;
    }
    return id;
}

} // namespace Vorlan::FrontEnd
