#pragma once

#include <QString>
#include <QUrl>

// The servers on loopback that the test runner starts (tests/support/serve).
namespace Vorlan::TestServers
{

// An address of the server of that name: "http", "https" (self-signed), "ipv6", "proxy", "silent"
// (connects and says nothing), "closed" (nobody listens). Throws where the runner started none.
QString Address(const QString& server, const QString& pathAndQuery = QString());

// The file of the certificate that "https" shows.
QString Certificate();

// Lets this process and its children ask a closed port instead of the vendor's services.
void KeepFromVendor();

} // namespace Vorlan::TestServers
