#pragma once

#include "installer/Export.h"
#include "platform/WebUidManager.h"

#include <QString>
#include <QStringList>

#include <map>
#include <string>
#include <utility>

namespace Vorlan
{

class InstallerMediator;

// Chooses the web user id of an installation.
struct WebUidProvider
{
    // What each source held, by the source's name: the id, with "NOT_VALID_" before it when it is
    // empty or no id. "API_WEBUID" is the answer of the identity service as it came, and
    // "MERGE_WEBUID_RESULT" is "not attempted", "success" or "fail".
    using WebUidResults = std::map<std::string, std::string>;

    // The id to use, empty when there is none, and what was found. Writes nothing; may ask the
    // identity service and blocks meanwhile. What the manager throws goes on to the caller.
    //   arguments             the host's; "/WEBUID=<id>" counts in this spelling only
    //   installerFileName     may hold an id, as in "setup_W<id>_.exe"
    //   useStoredId           the stored id of the product and nothing else, without results
    //   preferCommandLineId   a valid id among the arguments wins over every other source
    //   bundleName            told to the identity service
    INSTALLER_EXPORT static std::pair<QString, WebUidResults> GetWebUid(
        const InstallerMediator& mediator, const QStringList& arguments,
        const QString& installerFileName, bool useStoredId, bool preferCommandLineId,
        const App::WebUidManager::Parameters& parameters, const std::string& bundleName);
};

} // namespace Vorlan
