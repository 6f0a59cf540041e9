#include "registry/CreateProductProfile.h"

#include "base/ProductProfile.h"

namespace Vorlan
{

namespace
{

QStringList MediaExtensions()
{
    return {".3gp", ".3g2", ".3gpp", ".3gp2", ".aac", ".avi", ".ape", ".asf", ".dat", ".flv",
        ".flac", ".ifo", ".mpg", ".mpeg", ".mod", ".m2t", ".m2ts", ".mts", ".mp4", ".m4v", ".mov",
        ".mkv", ".mp3", ".mp2", ".mpa", ".qt", ".ogg", ".vro", ".vob", ".wma", ".wmv", ".wav"};
}

} // namespace

RegistrationProfile CreateProductProfile()
{
    const QString executable = ProductProfile::mainExecutable;
    const QString action = QStringLiteral("Convert Video and Audio");

    RegistrationProfile profile;
    profile.appPaths = {{executable, action, QString()}};
    profile.autoPlayAssociations = {
        {"convert_autoplay", executable, {"%1\\"}, action, {"PlayDVDMovieOnArrival"}}};
    profile.contextMenuExtensions = MediaExtensions();
    profile.contextMenuExecutable = executable;
    profile.autoLaunchExecutable = ProductProfile::autoLaunchExecutable;
    profile.mainExecutable = executable;
    profile.protocolHandler = QStringLiteral("VorlanLinkHelper");
    profile.protocolScheme = QStringLiteral("quillax");
    profile.outputNames = {{"fonts.conf", "vorlan\\fonts.conf"}};
    profile.stopProcesses = true;
    return profile;
}

} // namespace Vorlan
