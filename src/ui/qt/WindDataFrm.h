#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class WindDataFrm;
}

namespace gustline {

struct Application;

namespace report {
class ReportView;
}

// The inspector of the project workbook WindData: its sheets drawn as the report view draws
// the report, and Combo1, the list of its sections, which brings the chosen one to the top.
class WindDataFrm : public QDialog {
  Q_OBJECT

 public:
  explicit WindDataFrm(Application& app, QWidget* parent = nullptr);
  ~WindDataFrm() override;

  // A section chosen in Combo1; an unknown one is ignored.
  void Combo1_Click(const QString& caption);
  report::ReportView& View() { return *view_; }

 private:
  Application& app_;
  std::unique_ptr<Ui::WindDataFrm> ui_;
  report::ReportView* view_ = nullptr;
};

// Ctrl+Shift+P: the inspector, a child of `parent` created on first use, shown on the
// project as it stands.
WindDataFrm& ShowWindDataFrm(QWidget* parent, Application& app);

}  // namespace gustline
