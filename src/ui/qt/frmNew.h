#pragma once

#include <QDialog>
#include <memory>
#include <optional>
#include <string>

#include "ui/frmNewValues.h"

namespace Ui {
class frmNew;
}

namespace gustline {

// The new-project chooser: `List1` holds the report template groups and `cobDescription`
// the plain description of the row selected, the two in step. The description list takes
// no typing.
class frmNew : public QDialog {
  Q_OBJECT

 public:
  explicit frmNew(QWidget* parent = nullptr);
  ~frmNew() override;

  // Shows the form modally: the index of the row chosen, or -1 when it was refused
  // (Cancel, or closed by the window frame).
  int NewReportBox();

  NewProjectChoice Values() const;
  void ShowValues(const NewProjectChoice& values);

  // OK, and a double click on `List1`: the chosen row is accepted.
  void Command1_Click();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::unique_ptr<Ui::frmNew> ui_;
};

// The chooser of File New: the preset key of the row chosen, nullopt when refused.
std::optional<std::string> ChooseNewProject(QWidget* parent);

}  // namespace gustline
