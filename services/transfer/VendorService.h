#pragma once

#include "platform/Transfer.h"

#include <QUrl>

namespace Vorlan::Networking
{

// The address of one of the vendor's services, https://<name>.<vendor's domain>/v1/<path>. An
// environment variable may name another folder in place of what stands before the path; "off" in it
// gives an empty address, which means that no request is sent.
QUrl VendorServiceUrl(const QString& name, const char* variable, const QString& path);

// What a request to such a service may take: the limit for everything, no redirects, and this many
// bytes.
TransferPolicy VendorServicePolicy(std::chrono::milliseconds limit, long long largestBody);

} // namespace Vorlan::Networking
