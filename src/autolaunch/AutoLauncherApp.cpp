#include "autolaunch/AutoLauncherApp.h"

#include <boost/format.hpp>
#include <boost/lexical_cast.hpp>

#include <QRegularExpression>

#include <stdexcept>

namespace Vorlan
{

namespace
{

// The dots match any character, and the patch is one digit: entries of older versions are so.
const QRegularExpression idGrammar(QRegularExpression::anchoredPattern(
    "([a-zA-Z]+)_([a-zA-Z_-]+)_(\\d+).(\\d+).(\\d)_([a-zA-Z-]+)"));

} // namespace

std::int64_t AutoLauncherApp::VersionValue() const
{
    return (std::int64_t{major} * 256 + minor) * 256 + patch;
}

AutoLauncherApp AutoLauncherApp::FromParts(const std::string& company, const std::string& product,
    const std::string& app, const std::string& major, const std::string& minor,
    const std::string& patch)
try
{
    AutoLauncherApp result;
    result.company = company;
    result.product = product;
    result.app = app;
    result.major = boost::lexical_cast<std::int32_t>(major);
    result.minor = boost::lexical_cast<std::int32_t>(minor);
    result.patch = boost::lexical_cast<std::int32_t>(patch);
    result.id = (boost::format("%1%_%2%_%3%.%4%.%5%_%6%") % company % product % result.major %
                 result.minor % result.patch % app)
                    .str();
    return result;
}
catch (const boost::bad_lexical_cast&)
{
    throw std::runtime_error("Error get version ( " + major + " " + minor + " " + patch + " )");
}

std::optional<AutoLauncherApp> AutoLauncherApp::FromId(const std::string& id)
{
    const QRegularExpressionMatch match = idGrammar.match(QString::fromStdString(id));
    if (!match.hasMatch())
        return std::nullopt;
    const auto part = [&match](int group) { return match.captured(group).toStdString(); };
    try
    {
        return FromParts(part(1), part(2), part(6), part(3), part(4), part(5));
    }
    catch (const std::runtime_error&)
    {
        return std::nullopt; // a version beyond every number
    }
}

} // namespace Vorlan
