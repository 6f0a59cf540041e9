#pragma once

#include <QString>

namespace Vorlan::Platform
{

// Removes a link to a file, so that what is written next takes its place and not that of the file
// behind it. Anything else stays.
void RemoveFileLink(const QString& path);

// Removes a folder with everything in it. Of a link, to a file or to a folder, only the link is
// removed, also where the folder itself is one; what lies behind it stays. On Windows junctions are
// links and read-only files are removed, too. False when something could not be removed; the rest
// is removed then.
bool RemoveFolder(const QString& folder);

} // namespace Vorlan::Platform
