#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Vorlan
{

// A program that starts at logon, parsed from the id of its entry:
// company "_" product "_" major "." minor "." patch "_" app.
struct AutoLauncherApp
{
    std::string company;
    std::string product;
    std::string app; // the program, shared by several products; an empty one cannot be read back
    std::int32_t major = 0;
    std::int32_t minor = 0;
    std::int32_t patch = 0;
    std::string id;
    std::string path;
    std::vector<std::string> arguments;

    // For comparisons: (major x 256 + minor) x 256 + patch.
    std::int64_t VersionValue() const;

    // Throws std::runtime_error when a part of the version is no number.
    static AutoLauncherApp FromParts(const std::string& company, const std::string& product,
        const std::string& app, const std::string& major, const std::string& minor,
        const std::string& patch);

    // Nothing when the text is no id.
    static std::optional<AutoLauncherApp> FromId(const std::string& id);
};

} // namespace Vorlan
