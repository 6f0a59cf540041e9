#pragma once

namespace Vorlan::FrontEnd
{

// Whether a person watches standard output, and not a file or another program.
bool IsOutputTerminal();

} // namespace Vorlan::FrontEnd
