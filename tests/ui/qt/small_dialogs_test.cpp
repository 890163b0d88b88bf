#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QListWidget>
#include <QRadioButton>
#include <QTimer>
#include <filesystem>
#include <fstream>

#include "DialogTesting.h"
#include "TempFolder.h"
#include "ui/qt/Headings.h"
#include "ui/qt/PageSetup.h"
#include "ui/qt/Template.h"
#include "ui/qt/Units.h"
#include "ui/qt/frmNew.h"

namespace gustline {
namespace {

using testing::DialogApp;
using testing::Field;

template <typename Widget, typename Dialog>
Widget* Child(Dialog& dialog, const char* name) {
  return dialog.template findChild<Widget*>(name);
}

void Click(QRadioButton* option) {
  option->setChecked(true);
}

// --- Units ---

struct UnitsCase {
  const char* pressure;  // the option clicked in each group
  const char* force;
  const char* moment;
  int stored[3];
  double uForce;
  double uMoment;
};

TEST(UnitsTest, OkWritesTheThreeIndicesAndTheUnitBlockFollows) {
  const UnitsCase cases[] = {{"Option1_1", "Option2_0", "Option3_0", {1, 0, 0}, 1000, 1},
                             {"Option1_1", "Option2_1", "Option3_1", {1, 1, 1}, 1, 1},
                             {"Option1_0", "Option2_1", "Option3_0", {0, 1, 0}, 0.001, 1000},
                             {"Option1_0", "Option2_0", "Option3_1", {0, 0, 1}, 1, 0.001}};
  for (const UnitsCase& c : cases) {
    DialogApp d;
    Units dialog(d.app);
    Click(Child<QRadioButton>(dialog, c.pressure));
    Click(Child<QRadioButton>(dialog, c.force));
    Click(Child<QRadioButton>(dialog, c.moment));
    dialog.Command1_Click();
    EXPECT_EQ(d.Number("Pressure"), c.stored[0]) << c.pressure;
    EXPECT_EQ(d.Number("Force"), c.stored[1]) << c.force;
    EXPECT_EQ(d.Number("Moment"), c.stored[2]) << c.moment;
    EXPECT_DOUBLE_EQ(d.Number("U_Force"), c.uForce) << c.pressure << c.force;
    EXPECT_DOUBLE_EQ(d.Number("U_Moment"), c.uMoment) << c.force << c.moment;
    EXPECT_TRUE(d.state.modifiedFlag);
    EXPECT_EQ(d.report.reports, 1);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
  }
}

TEST(UnitsTest, OpensOnTheCellsAndCancelWritesNothing) {
  DialogApp d;
  wb::WriteNamedInt(d.Project(), "Pressure", 1);
  wb::WriteNamedInt(d.Project(), "Force", 5);  // names no option: the first is shown
  wb::WriteNamedInt(d.Project(), "Moment", 1);
  Units dialog(d.app);
  EXPECT_TRUE(Child<QRadioButton>(dialog, "Option1_1")->isChecked());
  EXPECT_TRUE(Child<QRadioButton>(dialog, "Option2_0")->isChecked());
  EXPECT_TRUE(Child<QRadioButton>(dialog, "Option3_1")->isChecked());
  Click(Child<QRadioButton>(dialog, "Option1_0"));
  Click(Child<QRadioButton>(dialog, "Option2_1"));
  dialog.reject();
  EXPECT_EQ(d.Number("Pressure"), 1);
  EXPECT_EQ(d.Number("Force"), 5);
  EXPECT_FALSE(d.state.modifiedFlag);
  EXPECT_EQ(d.report.reports, 0);
}

// --- Page Headings ---

TEST(HeadingsTest, OkWritesTheSevenCellsAndTheDateStopsFollowingTheClock) {
  DialogApp d;
  Headings dialog(d.app);
  EXPECT_EQ(Field(dialog, "Text2")->text().toStdString(), TodayShortDate());
  const std::pair<const char*, const char*> fields[] = {
      {"Text1_0", "Company"}, {"Text1_1", "Project"}, {"Text1_2", "Location"},
      {"Text1_3", "Subject"}, {"Text1_4", "FileNo"},  {"Text1_5", "Engineer"},
      {"Text2", "Date"}};
  for (const auto& [field, name] : fields) Field(dialog, field)->setText(name + QString("!"));
  dialog.Command1_Click();
  for (const auto& [field, name] : fields)
    EXPECT_EQ(wb::ReadNamedText(d.Project(), name), std::string(name) + "!") << field;
  EXPECT_EQ(d.Project().CellEntry(8, 2), "Date!");  // no longer =NOW()
  EXPECT_TRUE(d.state.modifiedFlag);
  EXPECT_EQ(d.report.reports, 1);
}

TEST(HeadingsTest, EmptyDateOpensOnTodayAndCancelWritesNothing) {
  DialogApp d;
  wb::WriteNamedText(d.Project(), "Date", "");
  Headings dialog(d.app);
  EXPECT_EQ(Field(dialog, "Text2")->text().toStdString(), TodayShortDate());
  Field(dialog, "Text1_0")->setText("Other");
  dialog.reject();
  EXPECT_EQ(wb::ReadNamedText(d.Project(), "Company"), " ");
  EXPECT_EQ(wb::ReadNamedText(d.Project(), "Date"), "");
  EXPECT_FALSE(d.state.modifiedFlag);
  EXPECT_EQ(d.report.reports, 0);
}

TEST(HeadingsTest, EmptyingAHeadingFieldComplainsAtOnce) {
  DialogApp d;
  Headings dialog(d.app);
  emit Field(dialog, "Text1_3")->textEdited("S");
  EXPECT_TRUE(d.prompt.messages.empty());
  emit Field(dialog, "Text1_3")->textEdited("");
  ASSERT_EQ(d.prompt.messages.size(), 1u);
  EXPECT_EQ(d.prompt.messages[0], (Message{"Heading Error", "Zero length values are not allowed",
                                           PromptIcon::Stop, PromptButtons::Ok}));
}

// --- Page Setup ---

// A report of three sheets with the first active and the third selected with it.
struct ThreeSheetReport {
  ThreeSheetReport() {
    report().AddSheet("Page2");
    report().AddSheet("Page3");
    for (int sheet = 1; sheet <= 3; ++sheet) {
      report().GetSheet(sheet).Print() = DefaultPageSetup();
      report().GetSheet(sheet).Print().printArea = "A1:J55";
    }
    report().SetSheetSelected(3, true);
  }
  wb::Workbook& report() { return d.state.ReportWorkbook(); }
  DialogApp d;
};

TEST(PageSetupTest, OpensOnTheActiveSheetsSetup) {
  ThreeSheetReport r;
  DialogApp& d = r.d;
  PageSetup dialog(d.app, false);
  const PageSetupValues v = dialog.Values();
  EXPECT_EQ(v.footer, "&A");
  EXPECT_EQ(v.topMargin, "0.75");
  EXPECT_EQ(v.bottomMargin, "0.5");
  EXPECT_EQ(v.rightMargin, "0");
  EXPECT_EQ(v.scale, "100");
  EXPECT_TRUE(v.fitToPages);
  EXPECT_EQ(v.pagesWide, "1");
}

TEST(PageSetupTest, OkAppliesTheFieldsToTheActiveAndSelectedSheets) {
  ThreeSheetReport r;
  DialogApp& d = r.d;
  PageSetup dialog(d.app, true);
  PageSetupValues v = dialog.Values();
  v.header = "Job 12";
  v.leftMargin = "1.25";
  v.fitToPages = false;
  v.scale = "85";
  v.centerVertical = true;
  v.blackAndWhite = true;
  dialog.ShowValues(v);
  dialog.Command1_Click();
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  const wb::PrintSetup& setup = d.state.pageSetup;
  EXPECT_EQ(setup.header, "Job 12");
  EXPECT_EQ(setup.leftMargin, 1.25);
  EXPECT_FALSE(setup.fitToPages);
  EXPECT_EQ(setup.scale, 85);
  EXPECT_TRUE(setup.vCenter && setup.noColor && setup.landscape);
  EXPECT_FALSE(setup.hCenter || setup.gridLines);
  for (int sheet : {1, 3}) {
    wb::PrintSetup expected = setup;
    expected.printArea = "A1:J55";
    EXPECT_EQ(r.report().GetSheet(sheet).Print(), expected) << sheet;
  }
  EXPECT_EQ(r.report().GetSheet(2).Print().header, "");
}

TEST(PageSetupTest, FailedRuleKeepsTheDialogAndWritesNothing) {
  const std::pair<const char*, const char*> cases[] = {
      {"Text9", "9"},  {"Text9", "401"}, {"Text7", "0"}, {"Text8", "10.5"},
      {"Text3", "49"}, {"Text6", "-1"},  {"Text4", ""}};
  for (const auto& [field, text] : cases) {
    ThreeSheetReport f;
    PageSetup dialog(f.d.app, false);
    Field(dialog, "Text1")->setText("Changed");
    Field(dialog, field)->setText(text);
    dialog.Command1_Click();
    EXPECT_EQ(f.d.prompt.messages.size(), 1u) << field << " " << text;
    EXPECT_NE(dialog.result(), QDialog::Accepted) << field;
    EXPECT_EQ(f.d.state.pageSetup, DefaultPageSetup()) << field;
    EXPECT_EQ(f.report().GetSheet(1).Print().header, "") << field;
  }
}

// --- Template ---

TEST(TemplateTest, BrowsedFileIsTakenAndAMissingOneKeepsTheDialog) {
  DialogApp d;
  const std::filesystem::path folder = gustline::testing::UniqueTempFolder("small_dialogs-");
  std::filesystem::create_directories(folder);
  const std::string chosen = (folder / "Tower.GLT").string();
  std::ofstream(chosen) << "template";
  d.state.applicationPath = folder.string();
  d.state.activeTemplatePath = (folder / "NORMAL.GLT").string();

  Template dialog(d.app);
  EXPECT_EQ(dialog.Values().name, "NORMAL");
  dialog.ShowValues({"Missing"});
  dialog.Command4_Click();
  EXPECT_NE(dialog.result(), QDialog::Accepted);
  ASSERT_EQ(d.prompt.messages.size(), 1u);
  EXPECT_EQ(d.prompt.messages[0].text, "This template does not exist.");
  EXPECT_EQ(d.state.activeTemplatePath, (folder / "NORMAL.GLT").string());

  d.prompt.fileChoices = {FileChoice{chosen, 1}};
  dialog.Command1_Click();
  EXPECT_EQ(d.prompt.fileRequests.back().title, "Active Template");
  EXPECT_EQ(dialog.Values().name, chosen);
  dialog.Command4_Click();
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(d.state.activeTemplatePath, chosen);
}

// --- New project chooser ---

TEST(NewProjectTest, ListMovesTheDescriptionWhichTakesNoTyping) {
  testing::EnsureApplication();
  frmNew form;
  auto* list = Child<QListWidget>(form, "List1");
  auto* description = Child<QComboBox>(form, "cobDescription");
  list->setCurrentRow(2);
  EXPECT_EQ(description->currentText(), "  Buildings of All Heights");
  QKeyEvent key(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
  QApplication::sendEvent(description, &key);
  EXPECT_EQ(description->currentIndex(), 2);
}

// Answers the chooser once it is up: a row and OK, or Cancel.
std::optional<std::string> ChooseWhileShown(int row) {
  QTimer::singleShot(0, [row] {
    auto* form = qobject_cast<frmNew*>(QApplication::activeModalWidget());
    ASSERT_NE(form, nullptr);
    if (row < 0) {
      form->reject();
      return;
    }
    form->ShowValues({row});
    form->Command1_Click();
  });
  return ChooseNewProject(nullptr);
}

TEST(NewProjectTest, ChooserReturnsTheKeyOfTheRowOrNothing) {
  testing::EnsureApplication();
  EXPECT_EQ(ChooseWhileShown(0), "Normal");
  EXPECT_EQ(ChooseWhileShown(3), "MWFRS Figure 6-7");
  EXPECT_EQ(ChooseWhileShown(static_cast<int>(NewProjectRows().size()) - 1),
            "OBOS Special Case Flexible");
  EXPECT_EQ(ChooseWhileShown(-1), std::nullopt);
}

}  // namespace
}  // namespace gustline
