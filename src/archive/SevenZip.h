#pragma once

// The LZMA SDK's C decoder. Its headers redefine error and attribute macros of <windows.h>, so they
// are included here only, and this header only where the decoder is driven.
#include <windows.h>

#include <7z.h>
#include <7zAlloc.h>
#include <7zCrc.h>
#include <7zFile.h>
