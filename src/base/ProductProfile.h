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

/// A literal with its length, which QLatin1String alone counts at compile time only with some
/// compilers.
template <int Size>
constexpr QLatin1String Text(const char (&literal)[Size])
{
    return QLatin1String(literal, Size - 1);
}

/// Publisher, and the key of the company in the registry.
inline constexpr QLatin1String companyName = Text("Vorlan");
/// The company in names of resources.
inline constexpr QLatin1String brandName = Text("vorlan");
/// Id of the product for the vendor's services and for programs that depend on it.
inline constexpr QLatin1String applicationId = Text("quillax");
/// Display name of the product where "settings.ini" has no other.
inline constexpr QLatin1String productName = Text("Quillax");
/// Id of the main application for other programs.
inline constexpr QLatin1String shortName = Text("quill");
/// First number of the version.
inline constexpr QLatin1String versionMajor = Text("24");
/// The other numbers of the version.
inline constexpr QLatin1String versionMinor = Text(VORLAN_VERSION_MINOR);
/// The version; that of the build's project() is the same.
inline constexpr QLatin1String versionText = Text("24." VORLAN_VERSION_MINOR);
/// Name of the product key, and of the folder of logs.
inline constexpr QLatin1String applicationKey = Text("Quillax24");
/// Name of the installation folder, the shortcuts and the entry in the list of programs.
inline constexpr QLatin1String productFullName = Text("Vorlan Quillax");
/// The payload, beside the front end.
inline constexpr QLatin1String archiveFileName = Text("InstallerData.7z");
/// The front end in the installation folder.
inline constexpr QLatin1String uninstallerFileName = Text("uninst.exe");
/// What shortcuts and the end of an installation start.
inline constexpr QLatin1String mainExecutable = Text("quill.exe");
/// Program that starts at logon; this product has none.
inline constexpr QLatin1String autoLaunchExecutable = Text("");
/// What the addresses of pages and services end in.
inline constexpr QLatin1String vendorDomain = Text("vorlan.example");
/// For a system whose language is not supported.
inline constexpr QLatin1String defaultLocale = Text("en_US");

/// The languages that the product is translated into, in the order of preference.
inline QStringList SupportedLocales()
{
    return {"de_DE", "en_US", "es_ES", "fr_FR", "it_IT", "ja_JP", "nl_NL", "pl_PL", "pt_BR",
        "ru_RU", "tr_TR", "zh_CN", "ko_KR", "zh_TW"};
}

} // namespace Vorlan::ProductProfile
