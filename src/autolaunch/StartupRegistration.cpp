#include "autolaunch/StartupRegistration.h"

#include "autolaunch/CreateAutoLauncher.h"
#include "base/ProductProfile.h"
#include "platform/Exception.h"

#include <QDebug>
#include <QRegularExpression>
#include <QString>

#include <stdexcept>

namespace Vorlan
{

namespace
{

constexpr int runKeyKind = 0;

PriorityAutoLauncherLogic::Priorities PrioritiesFor(const std::string& appId)
{
    const QString id = QString::fromStdString(appId);
    if (!id.contains("snapgrab", Qt::CaseInsensitive) &&
        !id.contains("snaptape", Qt::CaseInsensitive))
        return {{appId, 0}};
    return {{"snapgrabstudio", 2}, {"snap-tape", 1}, {"mediadeck", 0}, {"stape", -1},
        {"mediadeck_se", -2}, {"snapgrabstudio_se", -3}, {"snap-tape_se", -4}};
}

AutoLauncherApp OwnApp(const AutoLaunchApp& app, const AutoLaunchProduct& product)
{
    static const QRegularExpression minorAndPatch(
        QRegularExpression::anchoredPattern("(\\d+).(\\d+)"));
    const QRegularExpressionMatch parts =
        minorAndPatch.match(QString::fromStdString(product.versionMinor));
    if (!parts.hasMatch())
        throw std::runtime_error("Error parsing version ( " + product.versionMinor + " )");
    AutoLauncherApp own = AutoLauncherApp::FromParts(product.company, product.productId, app.appId,
        product.versionMajor, parts.captured(1).toStdString(), parts.captured(2).toStdString());
    own.path = app.path;
    own.arguments = {app.cmdParameters};
    return own;
}

std::string Describe(const AutoLaunchApp& app, const AutoLaunchProduct& product)
{
    return "productId = " + product.productId + "\nappId = " + app.appId +
           "\nversionMajor = " + product.versionMajor + "\npath = " + app.path +
           "\ncmdParameters = " + app.cmdParameters;
}

} // namespace

AutoLaunchProduct ThisProduct()
{
    return {ProductProfile::brandName.data(), ProductProfile::applicationId.data(),
        ProductProfile::versionMajor.data(), ProductProfile::versionMinor.data()};
}

StartupRegistration::StartupRegistration(
    QSettings::Scope scope, const AutoLaunchApp& app, const AutoLaunchProduct& product)
    : appId(app.appId),
      priorities(PrioritiesFor(app.appId)),
      logic(std::make_unique<PriorityAutoLauncherLogic>(
          CreateAutoLauncher(scope, runKeyKind), OwnApp(app, product), priorities))
{
}

void AddAppToStartup(
    QSettings::Scope scope, const AutoLaunchApp& app, const AutoLaunchProduct& product)
{
    const QString path = QString::fromStdString(app.path);
    try
    {
        StartupRegistration(scope, app, product).Logic().AddToStartup();
    }
    catch (const std::exception& error)
    {
        qInfo() << "Failed to add " << path << " to startup. Error: " << error.what();
        Core::TrackException(error);
    }
    catch (...)
    {
        qInfo() << "Failed to add " << path << " to startup.";
        Core::TrackException("Unknown exception in AddToStartup", Describe(app, product));
    }
}

bool IsAppInStartup(
    QSettings::Scope scope, const AutoLaunchApp& app, const AutoLaunchProduct& product)
{
    const QString path = QString::fromStdString(app.path);
    try
    {
        return StartupRegistration(scope, app, product).Logic().IsInStartup();
    }
    catch (const std::exception& error)
    {
        qInfo() << "Failed to check if " << path << " is in startup. Error: " << error.what();
        Core::TrackException(error);
    }
    catch (...)
    {
        qInfo() << "Failed to check if " << path << " is in startup.";
        Core::TrackException("Unknown exception in IsInStartup", Describe(app, product));
    }
    return false;
}

void RemoveAppFromStartup(
    QSettings::Scope scope, const AutoLaunchApp& app, const AutoLaunchProduct& product)
{
    const QString path = QString::fromStdString(app.path);
    try
    {
        StartupRegistration(scope, app, product).Logic().RemoveFromStartup();
    }
    catch (const std::exception& error)
    {
        qInfo() << "Failed to remove " << path << " from startup. Error: " << error.what();
    }
    catch (...)
    {
        qInfo() << "Failed to remove " << path << " from startup.";
    }
}

} // namespace Vorlan
