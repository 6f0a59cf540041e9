#include "support/TestServers.h"

#include "support/Machine.h"

#include <QFile>
#include <QStringList>

#include <stdexcept>

namespace Vorlan::TestServers
{

QString Address(const QString& server, const QString& pathAndQuery)
{
    QFile list(Payload("servers.ini"));
    if (!list.open(QIODevice::ReadOnly))
        throw std::runtime_error("no test servers: run the test through tools/test or ctest");
    for (const QString& line : QString::fromUtf8(list.readAll()).split('\n'))
    {
        if (line.startsWith(server + '='))
            return line.mid(server.size() + 1) + pathAndQuery;
    }
    throw std::runtime_error("no test server " + server.toStdString());
}

QString Certificate()
{
    return Payload("certificate.pem");
}

void KeepFromVendor()
{
    for (const char* name : {"VORLAN_CONFIG_URL", "VORLAN_WEBUID_URL"})
        qputenv(name, "http://127.0.0.1:1/");
}

} // namespace Vorlan::TestServers
