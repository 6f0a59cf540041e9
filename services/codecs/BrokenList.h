#pragma once

#include "platform/Path.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace Vorlan::Core::Utils
{

// Whether a text can be the name of a codec or of an implementation: 1 to 64 letters, digits,
// underscores and hyphens of ASCII.
bool IsCodecName(const std::string& name);

// A text file of what is known to be broken on this machine: a header line, then an entry per line.
// Malformed entries are ignored.
//   "# Vorlan broken codecs 1"      then "<codec>=<implementation>,<implementation>..."
//   "# Vorlan broken plug-ins 1"    then "<implementation>"
// An empty file is an empty list. A file that is longer than 1 MiB or has another header is neither
// read nor overwritten.
class BrokenList
{
public:
    enum class Kind
    {
        Codecs,
        Plugins
    };

    // An empty path stands for no file: nothing is known and nothing is written. Throws
    // std::runtime_error for a file of another kind, or one that cannot be read.
    BrokenList(Kind kind, const ioPath& path);

    const std::vector<std::string>& Lines() const { return lines; }

    // Replaces the file's entries, at once or not at all; a file that holds them is left alone.
    // Throws std::runtime_error when that is not possible.
    void Write(const std::vector<std::string>& newLines) const;

private:
    Kind kind;
    QString fileName;
    std::vector<std::string> lines;
};

using ImplsOfCodec = std::map<std::string, std::set<std::string>>;

ImplsOfCodec ReadBrokenCodecs(const std::vector<std::string>& lines);
std::set<std::string> ReadBrokenPlugins(const std::vector<std::string>& lines);

} // namespace Vorlan::Core::Utils
