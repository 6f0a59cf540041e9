#pragma once

#include <QLatin1String>
#include <QStringList>

/// Another version of the same product is built for the tests of an update.
#ifndef VORLAN_VERSION_MINOR
#define VORLAN_VERSION_MINOR "5.1"
#endif

/// The identity of the one product that this engine is built for. Changing it means another build
/// of the library; a front end reads it.
namespace Vorlan::ProductProfile
{

/// Publisher, and the key of the company in the registry.
inline constexpr QLatin1String companyName{"Vorlan"};
/// The company in names of resources.
inline constexpr QLatin1String brandName{"vorlan"};
/// Id of the product for the vendor's services and for programs that depend on it.
inline constexpr QLatin1String applicationId{"quillax"};
/// Display name of the product where "settings.ini" has no other.
inline constexpr QLatin1String productName{"Quillax"};
/// Id of the main application for other programs.
inline constexpr QLatin1String shortName{"quill"};
/// First number of the version.
inline constexpr QLatin1String versionMajor{"24"};
/// The other numbers of the version.
inline constexpr QLatin1String versionMinor{VORLAN_VERSION_MINOR};
/// The version; that of the build's project() is the same.
inline constexpr QLatin1String versionText{"24." VORLAN_VERSION_MINOR};
/// Name of the product key, and of the folder of logs.
inline constexpr QLatin1String applicationKey{"Quillax24"};
/// Name of the installation folder, the shortcuts and the entry in the list of programs.
inline constexpr QLatin1String productFullName{"Vorlan Quillax"};
/// The payload, beside the front end.
inline constexpr QLatin1String archiveFileName{"InstallerData.7z"};
/// The front end in the installation folder.
inline constexpr QLatin1String uninstallerFileName{"uninst.exe"};
/// What shortcuts and the end of an installation start.
inline constexpr QLatin1String mainExecutable{"quill.exe"};
/// Program that starts at logon; this product has none.
inline constexpr QLatin1String autoLaunchExecutable{""};
/// What the addresses of pages and services end in.
inline constexpr QLatin1String vendorDomain{"vorlan.example"};
/// For a system whose language is not supported.
inline constexpr QLatin1String defaultLocale{"en_US"};

/// The languages that the product is translated into, in the order of preference.
inline QStringList SupportedLocales()
{
    return {"de_DE", "en_US", "es_ES", "fr_FR", "it_IT", "ja_JP", "nl_NL", "pl_PL", "pt_BR",
        "ru_RU", "tr_TR", "zh_CN", "ko_KR", "zh_TW"};
}

} // namespace Vorlan::ProductProfile
