#pragma once

#include "base/Export.h"
#include "platform/WebUidManager.h"

#include <QString>
#include <QStringList>

#include <map>
#include <string>
#include <utility>

namespace Vorlan
{

class InstallerMediator;

/// Chooses the web user id of an installation, which goes into InstallationSettings::userInfo: that
/// of the user's key, the product's, the command line, the installer's file name, else a new one.
struct WebUidProvider
{
    /// What each source held, by the source's name: the id, with "NOT_VALID_" before it when it is
    /// empty or no id. "API_WEBUID" is the answer of the identity service as it came, and
    /// "MERGE_WEBUID_RESULT" is "not attempted", "success" or "fail".
    using WebUidResults = std::map<std::string, std::string>;

    /// Writes nothing. Asks the identity service at most once, for a new id or to merge several,
    /// and blocks meanwhile up to `parameters.limit`: call it on a thread that shows no window.
    /// Throws nothing of its own; a service that does not answer is no error.
    /// @param mediator what reads the stored ids; unchanged
    /// @param arguments the host's; "/WEBUID=<id>" counts in this spelling only
    /// @param installerFileName may hold an id, as in "setup_W<id>_.exe"
    /// @param useStoredId the stored id of the product and nothing else, without results
    /// @param preferCommandLineId a valid id among the arguments wins over every other source
    /// @param parameters of the requests to the service
    /// @param bundleName sent to the identity service
    /// @return the id to use, empty when there is none, and what was found
    INSTALLER_EXPORT static std::pair<QString, WebUidResults> GetWebUid(
        const InstallerMediator& mediator, const QStringList& arguments,
        const QString& installerFileName, bool useStoredId, bool preferCommandLineId,
        const App::WebUidManager::Parameters& parameters, const std::string& bundleName);
};

} // namespace Vorlan
