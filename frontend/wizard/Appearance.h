#pragma once

class QApplication;

namespace Vorlan::FrontEnd
{

// What must be said before the application object is made: pictures and sizes for fine screens.
void PrepareForFineScreens();

// Gives every window of the program the product's look, whatever the system's own is.
void DressApplication(QApplication& application);

} // namespace Vorlan::FrontEnd
