#pragma once

#include "registry/RegistrationProfile.h"

namespace Vorlan
{

// The profile of the product that this engine is built for.
RegistrationProfile CreateProductProfile();

} // namespace Vorlan
