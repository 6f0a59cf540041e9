#pragma once

#include <QtGlobal>

/// @file

/// Marks what the shared library offers to front ends. Programs that link the library's object
/// files directly (InstallerCore) see nothing here.
#if defined(INSTALLER_BUILD)
#define INSTALLER_EXPORT Q_DECL_EXPORT
#elif defined(INSTALLER_SHARED)
#define INSTALLER_EXPORT Q_DECL_IMPORT
#else
#define INSTALLER_EXPORT
#endif
