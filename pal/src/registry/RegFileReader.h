// Reads files of RegFileWriter and regedit, with line ends in texts escaped as \r and \n. A text
// that spans several lines is an error.
#pragma once

#include "registry/KeyTree.h"

#include <memory>
#include <optional>
#include <string_view>

namespace Pal
{

// Applies to the tree every record that is closed by an empty line, in order. Returns how many
// characters these took: what follows is a record that is not complete. Returns nothing when a
// complete record cannot be understood or names another root; the tree is then of no use.
std::optional<size_t> ApplyRecords(std::u16string_view text, const std::shared_ptr<KeyNode>& root);

} // namespace Pal
