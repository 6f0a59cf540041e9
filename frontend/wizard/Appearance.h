#pragma once

class QApplication;

namespace Vorlan::FrontEnd
{

// Enables high-DPI scaling; to be called before the application object is constructed.
void EnableHighDpi();

// Sets the product's style, palette and icon for all windows, independent of the system's style.
void ApplyStyle(QApplication& application);

} // namespace Vorlan::FrontEnd
