// Reads files of RegFileWriter and regedit, with line ends in texts escaped as \r and \n. A text
// that spans several lines is an error.
#pragma once

#include "registry/KeyTree.h"

#include <memory>
#include <string_view>

namespace Pal
{

// Adds the file's keys and values to the tree. False if the text is not understood or names another
// root; the tree is then incomplete.
bool ReadRegFile(std::u16string_view text, const std::shared_ptr<KeyNode>& root);

} // namespace Pal
