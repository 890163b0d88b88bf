#pragma once

#include <QDialog>
#include <cstddef>
#include <functional>
#include <utility>

#include "core/Application.h"
#include "ui/rules/qt/FormFields.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// What OK does once the fields passed their rules: the values written to the project, the
// project marked changed, the dialog closed and the report built again, unless whoever
// opened the dialog builds it afterwards. A write that fails gives its error; the rest
// still happens.
void AcceptPropertyValues(QDialog& dialog, Application& app,
                          const std::function<void(wb::Workbook&)>& write, bool buildReport);

// OK of a property dialog: the rules of its fields, then the values written. False, with
// the dialog kept, when a rule fails.
template <typename Values, std::size_t N>
bool AcceptProperties(QDialog& dialog, Application& app,
                      const rules::FormField<Values> (&fields)[N],
                      const std::function<void(wb::Workbook&)>& write, bool buildReport = true) {
  if (!rules::CheckFields(app.prompt, dialog, fields)) return false;
  AcceptPropertyValues(dialog, app, write, buildReport);
  return true;
}

// Runs `exec` after the status summary is refreshed; true when it gives QDialog::Accepted.
// A project that cannot be read gives its error, and the dialog does not come up.
bool ExecProperties(Application& app, const std::function<int()>& exec);

// The menu entry of a property dialog: Dialog(app, args..., parent) shown modally on the
// project as it stands; true at OK.
template <typename Dialog, typename... Args>
bool ShowProperties(QWidget* parent, Application& app, Args&&... args) {
  return ExecProperties(app, [&] {
    Dialog dialog(app, std::forward<Args>(args)..., parent);
    return dialog.exec();
  });
}

}  // namespace gustline
