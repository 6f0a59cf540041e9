#include "platform/Proxy.h"

#include <QString>
#include <QStringList>
#include <QUrl>

namespace Vorlan::Networking
{

namespace
{

QString Variable(const QString& name)
{
    const QString lower = qEnvironmentVariable(qPrintable(name));
    return lower.isEmpty() ? qEnvironmentVariable(qPrintable(name.toUpper())) : lower;
}

bool IsCoveredBy(const QString& host, QString pattern)
{
    pattern = pattern.trimmed();
    if (pattern.startsWith('.'))
        pattern.remove(0, 1);
    return pattern == "*" ||
           (!pattern.isEmpty() && (host.compare(pattern, Qt::CaseInsensitive) == 0 ||
                                      host.endsWith('.' + pattern, Qt::CaseInsensitive)));
}

bool IsReachedDirectly(const QString& host)
{
    const QStringList patterns = Variable("no_proxy").split(',', Qt::SkipEmptyParts);
    return std::any_of(patterns.begin(), patterns.end(),
        [&](const QString& pattern) { return IsCoveredBy(host, pattern); });
}

} // namespace

IProxyProvider::Proxy NativeProxyProvider::getProxy(const std::string& url)
{
    const QUrl target(QString::fromStdString(url));
    if (IsReachedDirectly(target.host()))
        return {};
    const QString ofScheme = Variable(target.scheme().toLower() + "_proxy");
    return {(ofScheme.isEmpty() ? Variable("all_proxy") : ofScheme).toStdString()};
}

} // namespace Vorlan::Networking
