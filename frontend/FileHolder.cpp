#include "FileHolder.h"

namespace Vorlan::FrontEnd
{

QString HolderText(const FileHolder& holder)
{
    return QString("%1 (%2)").arg(holder.name).arg(holder.processId);
}

} // namespace Vorlan::FrontEnd
