#pragma once

#include "network/ApplicationContext.h"

namespace Vorlan
{

// The application's context as this engine gives it: observers, and no manager. The one instance is
// made at the first call, from any thread.
App::ITopManager& GetTopManager();

} // namespace Vorlan
