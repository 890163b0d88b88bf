// The dialogs as the user sees them: labels, tabs, text boxes and sliders as drawn, and the
// wind properties dialog across activations, Cancel and a refused field on another tab.
#include <gtest/gtest.h>

#include <QDir>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>
#include <functional>
#include <memory>

#include "DialogTesting.h"
#include "buildings/qt/Fig610.h"
#include "buildings/qt/Fig66.h"
#include "ui/qt/Headings.h"
#include "ui/qt/Template.h"
#include "ui/qt/frmWindProp.h"

namespace gustline {
namespace {

using testing::DialogApp;
using testing::Field;

void SavePicture(QWidget& widget, const QString& name) {
  QDir().mkpath(QStringLiteral(GUSTLINE_PICTURES_DIR));
  widget.grab().save(QStringLiteral(GUSTLINE_PICTURES_DIR "/") + name);
}

using MakeDialog = std::function<std::unique_ptr<QWidget>(Application&)>;

template <typename Dialog>
MakeDialog Make() {
  return [](Application& app) { return std::make_unique<Dialog>(app); };
}

// A label with a mnemonic draws its text without the "&", the key underlined, as wide as
// the bare text.
TEST(DialogDisplayTest, LabelsDrawTheirMnemonicsAsKeys) {
  for (const MakeDialog& make :
       {Make<frmWindProp>(), Make<Fig66>(), Make<Fig610>(), Make<Headings>(), Make<Template>()}) {
    DialogApp d;
    const std::unique_ptr<QWidget> dialog = make(d.app);
    for (const QLabel* label : dialog->findChildren<QLabel*>()) {
      QString bare = label->text();
      bare.replace(QStringLiteral("&&"), QStringLiteral("\x01"));
      if (!bare.contains(u'&')) continue;
      SCOPED_TRACE(label->objectName().toStdString());
      EXPECT_NE(label->buddy(), nullptr);
      const QLabel drawn(bare.remove(u'&').replace(u'\x01', u'&'));
      EXPECT_EQ(label->sizeHint().width(), drawn.sizeHint().width());
    }
  }
}

TEST(DialogDisplayTest, EveryTabOfTheWindPropertiesShowsWithoutScrolling) {
  DialogApp d;
  frmWindProp form(d.app);
  form.show();
  const QTabBar* tabs = form.findChild<QTabWidget*>("SSTab1")->tabBar();
  for (int i = 0; i < tabs->count(); ++i) {
    EXPECT_TRUE(tabs->rect().contains(tabs->tabRect(i))) << tabs->tabText(i).toStdString();
  }
  SavePicture(form, QStringLiteral("wind_properties.png"));
}

// The caret at the end of the text is as far from the caret at its start as the text is
// wide: the box did not scroll, and all of it shows.
QRect Caret(const QLineEdit& box) {
  return box.inputMethodQuery(Qt::ImCursorRectangle).toRect();
}

void ExpectWholeText(QLineEdit& box) {
  SCOPED_TRACE(box.objectName().toStdString());
  box.home(false);
  const int start = Caret(box).center().x();
  box.end(false);
  const int end = Caret(box).center().x();
  EXPECT_GE(end - start, box.fontMetrics().horizontalAdvance(box.text()));
  EXPECT_LE(Caret(box).right(), box.contentsRect().right());
}

TEST(DialogDisplayTest, HeadingsAndTemplateShowTheirWholeText) {
  DialogApp d;
  wb::WriteNamedText(d.Project(), "Company",
                     "Kestrel Ridge Structural Engineers and Building Consultants, Inc.");
  d.state.activeTemplatePath = "/srv/office/Kestrel Ridge Structural Engineers Standard.GLT";
  Headings headings(d.app);
  Template chooser(d.app);
  for (QDialog* dialog : std::initializer_list<QDialog*>{&headings, &chooser}) {
    dialog->show();
    for (QLineEdit* box : dialog->findChildren<QLineEdit*>()) ExpectWholeText(*box);
  }
  SavePicture(headings, QStringLiteral("headings.png"));
}

TEST(DialogDisplayTest, AngleSlidersShowTheirFieldsAngleWhenTheDialogOpens) {
  DialogApp d;
  wb::WriteNamedNumber(d.Project(), "Figure63WinAng", 23);
  wb::WriteNamedNumber(d.Project(), "Figure63LeeAng", 14.75);
  wb::WriteNamedNumber(d.Project(), "Figure64Angle", 31);
  Fig66 fig66(d.app);
  Fig610 fig610(d.app);
  EXPECT_EQ(fig66.findChild<QSlider*>("Slider1")->value(), 23);
  EXPECT_EQ(fig66.findChild<QSlider*>("Slider2")->value(), 14);
  EXPECT_EQ(Field(fig66, "Text3")->text(), "14.75");
  EXPECT_EQ(fig610.findChild<QSlider*>("Slider1")->value(), 31);
}

void Activate(QWidget& form) {
  QEvent activate(QEvent::WindowActivate);
  QApplication::sendEvent(&form, &activate);
}

// Another project opened while the dialog is up: at its next activation the dialog shows
// the new project's values, and keeps what the user typed in the fields the project kept.
TEST(DialogDisplayTest, WindPropertiesTakeTheProjectAtEachActivation) {
  DialogApp d;
  frmWindProp form(d.app);
  form.show();
  Field(form, "Text1")->setText("75");
  wb::WriteNamedNumber(d.Project(), "WindSpeed", 140);
  Activate(form);
  EXPECT_EQ(Field(form, "Text6")->text(), "140.00");
  EXPECT_EQ(Field(form, "Text1")->text(), "75");
  form.Command1_Click();
  EXPECT_EQ(d.Number("WindSpeed"), 140);
  EXPECT_EQ(d.Number("Height"), 75);
}

TEST(DialogDisplayTest, CancelShowsTheProjectInTheStatusPanelsAgain) {
  DialogApp d;
  frmWindProp form(d.app);
  form.show();
  Field(form, "Text6")->setText("150");
  ASSERT_EQ(d.view.panels[2], " V = 150.00 mph");
  form.reject();
  EXPECT_EQ(d.view.panels[2], " V = 90.00 mph ");
}

// A refused field on another tab: its message, then its tab forward and the cursor in it.
TEST(DialogDisplayTest, RefusedFieldOnAnotherTabComesForward) {
  struct Case {
    const char* field;
    int tab;
  };
  for (const Case c : {Case{"HillX", 4}, Case{"Text2", 2}, Case{"Text6", 1}}) {
    DialogApp d;
    frmWindProp form(d.app);
    form.TabSelect(0);
    form.show();
    Field(form, c.field)->setText("-1");
    form.Command1_Click();
    EXPECT_EQ(d.prompt.messages.size(), 1u) << c.field;
    EXPECT_EQ(form.findChild<QTabWidget*>("SSTab1")->currentIndex(), c.tab) << c.field;
    EXPECT_EQ(form.focusWidget(), Field(form, c.field)) << c.field;
  }
}

}  // namespace
}  // namespace gustline
