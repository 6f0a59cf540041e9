#pragma once

#include "CloseHolders.h"

namespace Vorlan::FrontEnd
{

class InUsePage;
class WizardWindow;

// Asks the programs of the page to close, and after ten seconds the user whether to end those that
// have not. Processes events meanwhile; the window has no buttons and stays open until then. The
// caller looks again who holds files. On the GUI thread only.
void CloseWithConsent(WizardWindow& window, InUsePage& page, const ProcessAccess& access);

} // namespace Vorlan::FrontEnd
