#pragma once

#include <functional>

class QWidget;

namespace gustline {

struct Application;

// The maintenance keys of the main window: Ctrl+Shift+P shows the inspector of the project
// workbook; Ctrl+Alt+P gives the project's sheets the page setup and prints the first sheet
// without a dialog; Ctrl+Alt+W writes the templates of containers A, B, F and D to their
// temporary files. Each does nothing while `app` gives no application.
void AddMaintenanceKeys(QWidget& window, const std::function<Application*()>& app);

}  // namespace gustline
