// The objects that on Windows start packaged applications and choose default ones. Here they only
// append each request as a line to "default-apps.txt" in the machine root:
//
//   activate<tab>application id<tab>arguments
//   default<tab>application<tab>extension
#pragma once

#include <objbase.h>

namespace Pal
{

inline constexpr CLSID activationManagerClass = {
    0x45BA127D, 0x10A8, 0x46EA, {0x8A, 0xB7, 0x56, 0xEA, 0x90, 0x78, 0x94, 0x3C}};
inline constexpr CLSID associationRegistrationClass = {
    0x591209C7, 0x767B, 0x42B2, {0x9F, 0xBA, 0x44, 0xEE, 0x46, 0x15, 0xF2, 0xC7}};

// Objects with one reference.
IUnknown* MakeActivationManager();
IUnknown* MakeAssociationRegistration();

} // namespace Pal
