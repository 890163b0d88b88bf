#pragma once

#include <QDialog>
#include <memory>

#include "ui/PageSetupValues.h"

namespace Ui {
class PageSetup;
}

namespace gustline {

struct Application;

// "Page Setup": header and footer (Text1, Text2), margins (Text3 to Text6), the scale in
// per cent (Text9) or a number of pages wide and tall (Text7, Text8), chosen by Option1,
// and the check boxes Check1_0 to Check1_3. A numeric field selects its text when it takes
// the focus.
class PageSetup : public QDialog {
  Q_OBJECT

 public:
  // Opens on the setup of the report's active sheet; `printerLandscape` is the
  // orientation of the printer, which OK gives to the sheets.
  PageSetup(Application& app, bool printerLandscape, QWidget* parent = nullptr);
  ~PageSetup() override;

  PageSetupValues Values() const;
  void ShowValues(const PageSetupValues& values);

  // OK: the field rules, then the setup goes to the report; a failed rule keeps the dialog.
  void Command1_Click();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Application& app_;
  bool printerLandscape_;
  std::unique_ptr<Ui::PageSetup> ui_;
};

}  // namespace gustline
