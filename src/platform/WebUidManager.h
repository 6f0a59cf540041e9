#pragma once

#include <chrono>
#include <map>
#include <set>
#include <string>

namespace Vorlan::App
{

/// Knows what a web user id is and asks the vendor's identity service for new ones; front ends only
/// name its Parameters. Ids are texts of 8 to 64 ASCII letters, digits and hyphens. Texts are
/// UTF-8; calls block, may come from any thread, and throw nothing of their own. The service lies
/// below https://identity.vorlan.example/v1/; the environment variable VORLAN_WEBUID_URL replaces
/// that, and with "off" in it no request is sent. Each request takes at most the limit; a failure
/// is logged.
class WebUidManager
{
public:
    /// Limits of the requests.
    struct Parameters
    {
        std::chrono::milliseconds limit{3000}; ///< for one request to the service
    };

    /// Only keeps the parameters.
    explicit WebUidManager(const Parameters& given);

    /// The id that the user's key of the company holds; empty when there is none, or it is no id.
    std::string getUserWebUid() const;

    /// Whether the text has the form of an id; no request is sent.
    bool isValidWebUid(const std::string& id) const;

    /// The text stored for a key ("User" or an application's) of a company in the registry, valid
    /// or not; empty when there is none. The user's branch comes before the machine's.
    std::string getWebUidFromRegistryKey(const std::string& key, const std::string& company) const;

    /// A new id: POST to "request" with the request's entries as an HTML form; the answer is the id
    /// as plain text. Empty when the service gives none.
    std::string requestWebUid(const std::map<std::string, std::string>& request) const;

    /// Lets several ids mean one identity: POST to "merge" with the form entries "id" and, for each
    /// of the others, "other". True when the service answers with status 200.
    bool concatenateWebUids(const std::string& id, const std::set<std::string>& others) const;

private:
    Parameters parameters;
};

} // namespace Vorlan::App
