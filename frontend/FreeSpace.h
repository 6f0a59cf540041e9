#pragma once

#include <QString>

#include <optional>

namespace Vorlan::FrontEnd
{

// Free bytes for this user where the folder is or would be created; none if the system does not
// say. Takes as long as the disk does.
std::optional<qint64> FreeSpace(const QString& folder);

} // namespace Vorlan::FrontEnd
