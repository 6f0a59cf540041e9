// Export.h is shared by every folder; embedders know it by this name.
#pragma once

#include "base/Export.h"
