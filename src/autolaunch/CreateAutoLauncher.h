#pragma once

#include "autolaunch/IAutoLauncher.h"

#include <QSettings>

#include <memory>

namespace Vorlan
{

// The mechanism of that kind: 1 is the task scheduler (whatever the scope), every other number the
// Run key of the registry for the scope.
std::shared_ptr<IAutoLauncher> CreateAutoLauncher(QSettings::Scope scope, int kind);

} // namespace Vorlan
