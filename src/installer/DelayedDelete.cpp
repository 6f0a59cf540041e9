#include "installer/DelayedDelete.h"

namespace Vorlan
{

void DelayedDeleteDir(int, const QString&) {}

} // namespace Vorlan
