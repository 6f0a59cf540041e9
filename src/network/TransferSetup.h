#pragma once

#include "platform/Proxy.h"

namespace Vorlan::Networking
{

// Initialises libcurl for the whole process before anything of it is used; it is cleaned up when
// the library is unloaded. On Linux this has happened when the library is loaded, and an
// initialisation that fails throws out of that. On Windows the first object of this layer does it:
// static objects of a library are constructed while the loader holds its lock, and under that
// neither libcurl nor WSAStartup, which it calls, may be initialised. Any thread; throws
// std::runtime_error.
void SetUpTransfers();

// The one proxy provider of the process, as old as libcurl's set-up.
IProxyProvider& ProxyProvider();

} // namespace Vorlan::Networking
