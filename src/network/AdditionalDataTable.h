#pragma once

#include <QString>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Vorlan::Installer
{

// Files to download after an installation: for a language code, or for "all", the pairs of source
// address (http or https) and destination (a folder or a full file path), in their order.
using AdditionalDataTable = std::map<std::string, std::vector<std::pair<QString, QString>>>;

} // namespace Vorlan::Installer
