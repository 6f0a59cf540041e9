#include "identity/WebUidProvider.h"

#include "base/ProductProfile.h"
#include "installer/InstallerMediator.h"

#include <QDebug>

#include <set>
#include <vector>

namespace Vorlan
{

namespace
{

constexpr char formerCompany[] = "Vorlan";

struct Candidate
{
    const char* source;
    std::string id;
};

std::string IdOfArguments(const QStringList& arguments)
{
    for (const QString& argument : arguments)
    {
        if (argument.startsWith("/WEBUID="))
            return argument.mid(argument.indexOf('=') + 1).toStdString();
    }
    return {};
}

std::string IdOfFileName(const QString& name)
{
    const QString mark = "_W";
    const int start = name.indexOf(mark);
    const int end = start < 0 ? -1 : name.indexOf('_', start + mark.size());
    return end < 0 ? std::string() : name.mid(start + 2, end - start - 2).toStdString();
}

// One resolution: asks the manager about each id at most once.
class Resolution
{
public:
    Resolution(const InstallerMediator& asked, const App::WebUidManager::Parameters& parameters)
        : mediator(asked), manager(parameters)
    {
        const std::string ofUser = manager.getUserWebUid();
        if (!ofUser.empty())
            verdicts[ofUser] = true;
    }

    void Run(const QStringList& arguments, const QString& installerFileName,
        bool preferCommandLineId, const std::string& bundleName)
    {
        const std::string ofArguments = IdOfArguments(arguments);
        const std::string ofProduct = mediator.GetWebUIDFromProductKey().toStdString();
        const bool isArgumentValid = IsValid(ofArguments);
        if (preferCommandLineId && isArgumentValid)
        {
            chosen = ofArguments;
            others.insert(ofProduct);
            results["WI_WEBUID"] = ofArguments;
            Record({"REG_PRODUCT_WEBUID", ofProduct});
        }
        else
        {
            for (const Candidate& candidate :
                Candidates(ofArguments, ofProduct, IdOfFileName(installerFileName)))
                Consider(candidate);
            if (chosen.empty())
                Request(bundleName);
        }
        Merge();
    }

    std::string chosen;
    WebUidProvider::WebUidResults results;

private:
    bool IsValid(const std::string& id)
    {
        if (id.empty())
            return false;
        const auto known = verdicts.find(id);
        return known != verdicts.end() ? known->second : (verdicts[id] = manager.isValidWebUid(id));
    }

    std::vector<Candidate> Candidates(const std::string& ofArguments, const std::string& ofProduct,
        const std::string& ofFileName) const
    {
        const bool isRenamed = ProductProfile::companyName != QLatin1String(formerCompany);
        std::vector<Candidate> candidates;
        if (isRenamed)
            candidates.push_back({"REG_USER_OLD_BRAND_WEBUID",
                manager.getWebUidFromRegistryKey("User", formerCompany)});
        candidates.push_back({"REG_USER_WEBUID", mediator.GetWebUIDFromUserKey().toStdString()});
        if (isRenamed)
            candidates.push_back({"REG_PRODUCT_OLD_BRAND_WEBUID",
                manager.getWebUidFromRegistryKey(
                    mediator.GetApplicationName().toStdString(), formerCompany)});
        candidates.push_back({"REG_PRODUCT_WEBUID", ofProduct});
        candidates.push_back({"WI_WEBUID", ofArguments});
        candidates.push_back({"FILE_WEBUID", ofFileName});
        return candidates;
    }

    void Consider(const Candidate& candidate)
    {
        if (IsValid(candidate.id))
        {
            if (chosen.empty())
                chosen = candidate.id;
            if (candidate.id != chosen)
                others.insert(candidate.id);
        }
        Record(candidate);
    }

    void Record(const Candidate& candidate)
    {
        results[candidate.source] = (IsValid(candidate.id) ? "" : "NOT_VALID_") + candidate.id;
    }

    void Request(const std::string& bundleName)
    {
        const QString version =
            ProductProfile::versionMajor + QString('.') + ProductProfile::versionMinor;
        chosen = manager.requestWebUid({{"app", ProductProfile::applicationId.data()},
            {"version", version.toStdString()}, {"source", "QTI"}, {"bundle_name", bundleName}});
        results["API_WEBUID"] = chosen;
    }

    void Merge()
    {
        std::string& result = results["MERGE_WEBUID_RESULT"] = "not attempted";
        if (!chosen.empty() && !others.empty())
            result = manager.concatenateWebUids(chosen, others) ? "success" : "fail";
    }

    const InstallerMediator& mediator;
    App::WebUidManager manager;
    std::map<std::string, bool> verdicts;
    std::set<std::string> others; // to be merged with the chosen id
};

} // namespace

std::pair<QString, WebUidProvider::WebUidResults> WebUidProvider::GetWebUid(
    const InstallerMediator& mediator, const QStringList& arguments,
    const QString& installerFileName, bool useStoredId, bool preferCommandLineId,
    const App::WebUidManager::Parameters& parameters, const std::string& bundleName)
{
    std::pair<QString, WebUidResults> found;
    if (useStoredId)
    {
        found.first = mediator.GetWebUID();
    }
    else
    {
        Resolution resolution(mediator, parameters);
        resolution.Run(arguments, installerFileName, preferCommandLineId, bundleName);
        found = {QString::fromStdString(resolution.chosen), resolution.results};
    }
    qDebug() << "Using webUid = " << found.first;
    return found;
}

} // namespace Vorlan
