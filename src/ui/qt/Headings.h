#pragma once

#include <QDialog>
#include <memory>

#include "ui/HeadingsValues.h"

namespace Ui {
class Headings;
}

namespace gustline {

struct Application;

// "Page Headings": the control array Text1 (Text1_0 to Text1_5: company, project,
// location, subject, file number, engineer) and the date Text2. A field selects its text
// when it takes the focus; the date is written as a short date when it loses it.
class Headings : public QDialog {
  Q_OBJECT

 public:
  explicit Headings(Application& app, QWidget* parent = nullptr);
  ~Headings() override;

  HeadingsValues Values() const;
  void ShowValues(const HeadingsValues& values);

  // A field of Text1 changed by the user: emptied, it gives the heading error at once.
  void Text1_Change(const QString& text);
  // OK: writes the seven cells, marks the project changed and rebuilds the report.
  void Command1_Click();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Application& app_;
  std::unique_ptr<Ui::Headings> ui_;
};

}  // namespace gustline
