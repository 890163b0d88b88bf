#pragma once

#include <QDialog>
#include <memory>

#include "ui/TemplateValues.h"

namespace Ui {
class Template;
}

namespace gustline {

struct Application;

// "Template": the name of the active template in Text1, Command1 "Active..." to browse for
// one, Command4 OK. The template chosen takes effect at the next File New or start.
class Template : public QDialog {
  Q_OBJECT

 public:
  explicit Template(Application& app, QWidget* parent = nullptr);
  ~Template() override;

  TemplateChoice Values() const;
  void ShowValues(const TemplateChoice& values);

  // Browse: the chosen file goes into the field.
  void Command1_Click();
  // OK: a template that exists becomes the active one; otherwise the dialog stays.
  void Command4_Click();

 private:
  Application& app_;
  std::unique_ptr<Ui::Template> ui_;
};

// The menu entry: refreshes the status summary and shows the dialog modally; true when a
// template was accepted.
bool ShowTemplate(QWidget* parent, Application& app);

}  // namespace gustline
