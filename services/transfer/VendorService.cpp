#include "transfer/VendorService.h"

#include "base/ProductProfile.h"

namespace Vorlan::Networking
{

QUrl VendorServiceUrl(const QString& name, const char* variable, const QString& path)
{
    const QString replaced = qEnvironmentVariable(variable);
    if (replaced.compare("off", Qt::CaseInsensitive) == 0)
        return QUrl();
    const QString folder = replaced.isEmpty()
                               ? "https://" + name + '.' + ProductProfile::vendorDomain + "/v1/"
                               : replaced + (replaced.endsWith('/') ? "" : "/");
    return QUrl(folder + path);
}

TransferPolicy VendorServicePolicy(std::chrono::milliseconds limit, long long largestBody)
{
    TransferPolicy policy;
    policy.overallLimit = limit;
    policy.redirects = 0;
    policy.largestBody = largestBody;
    return policy;
}

} // namespace Vorlan::Networking
