// The handlers of the main window's own commands, and the dialogs of the procedures it hands
// to the wind properties dialog; the other commands are the core's and the dialogs' own.
#include <QClipboard>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QInputDialog>
#include <QMimeData>
#include <QScopeGuard>
#include <QUrl>

#include "buildings/qt/Fig610.h"
#include "buildings/qt/Fig611.h"
#include "buildings/qt/Fig616.h"
#include "buildings/qt/Fig617.h"
#include "buildings/qt/Fig66.h"
#include "buildings/qt/Figure67.h"
#include "buildings/qt/Figure68.h"
#include "buildings/qt/Figure68comp.h"
#include "core/Application.h"
#include "core/FacilityErrorReport.h"
#include "core/FileExit.h"
#include "core/FileNew.h"
#include "core/FileOpen.h"
#include "core/PrintToPdf.h"
#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "core/StatusSummary.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "factors/qt/frmTopography.h"
#include "geometry/qt/Geometry.h"
#include "report/ReportClipboard.h"
#include "report/qt/MainFrm.h"
#include "report/qt/ReportPrinting.h"
#include "simplified/qt/frmSimplified.h"
#include "structures/qt/Fig619.h"
#include "structures/qt/Figure618.h"
#include "structures/qt/Figure619.h"
#include "structures/qt/Figure620.h"
#include "structures/qt/Figure621.h"
#include "structures/qt/Figure622.h"
#include "structures/qt/TableSpecial.h"
#include "ui/qt/frmNew.h"
#include "ui/qt/frmWindProp.h"
#include "ui/rules/qt/PropertyDialog.h"

namespace gustline {
namespace {

// The figure dialogs of the procedures, which the wind properties dialog opens from its
// coefficients and topography tabs. The other figures and tables come with their
// procedures.
FigureDialogs ProcedureDialogs(const std::function<void()>& wallGeometry) {
  FigureDialogs dialogs;
  dialogs.figures[FigureDialog::Fig66] = [wallGeometry](Application& app, int /*figure*/,
                                                        QWidget* parent) {
    Fig66(app, wallGeometry, parent).exec();
  };
  dialogs.figures[FigureDialog::Fig610] = [](Application& app, int /*figure*/, QWidget* parent) {
    Fig610(app, parent).exec();
  };
  // The entries of Figures 6-11 to 6-15 open the one dialog at their roof type.
  dialogs.figures[FigureDialog::Fig611] = [](Application& app, int figure, QWidget* parent) {
    Fig611(app, Fig611RoofType(figure), parent).exec();
  };
  dialogs.figures[FigureDialog::Fig617] = [](Application& app, int /*figure*/, QWidget* parent) {
    Fig617(app, parent).exec();
  };
  dialogs.figures[FigureDialog::Figure68] = [](Application& app, int /*figure*/, QWidget* parent) {
    Figure68(app, parent).exec();
  };
  dialogs.figures[FigureDialog::Figure68comp] =
      [](Application& app, int /*figure*/, QWidget* parent) { Figure68comp(app, parent).exec(); };
  dialogs.figures[FigureDialog::Figure67] = [](Application& app, int /*figure*/, QWidget* parent) {
    Figure67(app, parent).exec();
  };
  dialogs.figures[FigureDialog::Fig616] = [](Application& app, int /*figure*/, QWidget* parent) {
    Fig616(app, parent).exec();
  };
  dialogs.tables[TableDialog::Figure618] = [](Application& app, QWidget* parent) {
    Figure618(app, parent).exec();
  };
  dialogs.tables[TableDialog::Fig619] = [](Application& app, QWidget* parent) {
    Fig619(app, parent).exec();
  };
  dialogs.tables[TableDialog::Figure620] = [](Application& app, QWidget* parent) {
    Figure620(app, parent).exec();
  };
  dialogs.tables[TableDialog::Figure619] = [](Application& app, QWidget* parent) {
    Figure619(app, parent).exec();
  };
  dialogs.tables[TableDialog::Figure621] = [](Application& app, QWidget* parent) {
    Figure621(app, parent).exec();
  };
  dialogs.tables[TableDialog::Figure622] = [](Application& app, QWidget* parent) {
    Figure622(app, parent).exec();
  };
  dialogs.tables[TableDialog::TableSpecial] = [](Application& app, QWidget* parent) {
    TableSpecial(app, parent).exec();
  };
  dialogs.topography = [](QWidget* parent) { frmTopography(parent).exec(); };
  return dialogs;
}

}  // namespace

void MainFrm::FileNewCommand() {
  if (!app_) return;
  FileNew(*app_, [this] { return ChooseNewProject(this); });
}

void MainFrm::OpenRecent(int entry) {
  if (app_) OpenRecentFile(*app_, entry);
}

void MainFrm::FileExitCommand() {
  if (!app_ || !FileExit(*app_)) return;
  hide();
  QCoreApplication::quit();
}

void MainFrm::EditCopy() {
  if (!app_) return;
  try {
    wb::Workbook& report = app_->state.ReportWorkbook();
    report.CopySelection();
    const report::ClipboardCopy copy = report::CopyForClipboard(report);
    auto* data = new QMimeData;
    data->setText(QString::fromStdString(copy.text));
    data->setHtml(QString::fromStdString(copy.html));
    QGuiApplication::clipboard()->setMimeData(data);
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app_->prompt, error);
  }
}

void MainFrm::RepeatLastCommand() {
  const std::string_view command = repeat_.Find([this](std::string_view name) {
    const QAction* action = Command(name);
    return action ? action->text().toStdString() : std::string();
  });
  if (!command.empty()) RunCommand(command);
}

void MainFrm::HelpContents() {
  if (!app_) return;
  const QString manual = QString::fromStdString(app_->state.manualPath);
  if (QFileInfo::exists(manual) && QDesktopServices::openUrl(QUrl::fromLocalFile(manual))) return;
  app_->prompt.Show(Message{"Error",
                            "There is no application associated with the .pdf filename extension.",
                            PromptIcon::Stop, PromptButtons::Ok});
}

void MainFrm::RefreshStatusSummary() {
  if (app_) UpdateStatusSummary(app_->state.ProjectWorkbook(), app_->view);
}

void MainFrm::OpenWindProperties(int tab) {
  if (app_) ShowWindProperties(*app_, tab, ProcedureDialogs([this] { OpenGeometry(1); }), this);
}

void MainFrm::OpenGeometry(int tab) {
  if (!app_) return;
  if (!geometry_) {
    geometry_ = std::make_unique<geometry::Geometry>(*app_, this);
    geometry_->SetHelp([this] { HelpContents(); });
    // The lists by interval that a new interval leaves out of step, over the dialog.
    geometry_->SetIntervalListDialogs(
        {{geometry::IntervalListDialog::Figure619,
          [this] { ShowProperties<Figure619>(geometry_.get(), *app_); }},
         {geometry::IntervalListDialog::Figure622,
          [this] { ShowProperties<Figure622>(geometry_.get(), *app_); }},
         {geometry::IntervalListDialog::TableSpecial,
          [this] { ShowProperties<TableSpecial>(geometry_.get(), *app_); }}});
  }
  geometry_->Exec(tab);
}

void MainFrm::OpenSimplified() {
  if (!app_) return;
  if (!simplified_) {
    simplified_ = std::make_unique<frmSimplified>(*app_, this);
    // The wind properties dialog, modal over the simplified one on its topography page.
    simplified_->SetTopography([this](QWidget* /*over*/) {
      frmWindProp& form = WindPropertiesForm(*app_, this);
      form.SetFigureDialogs(ProcedureDialogs([this] { OpenGeometry(1); }));
      // Shown modeless before, it comes back modal.
      form.hide();
      form.SetReportOnLeave(false);
      const auto restore = qScopeGuard([&form] { form.SetReportOnLeave(true); });
      form.TabSelect(kTopographyTab);
      form.exec();
    });
    simplified_->SetHelp([this] { HelpContents(); }, [this] { HelpContents(); });
  }
  RefreshStatusSummary();
  simplified_->Exec();
}

void MainFrm::FormatWidth() {
  if (!app_) return;
  wb::Workbook& book = app_->state.ReportWorkbook();
  bool accepted = false;
  const double width = QInputDialog::getDouble(
      this, QStringLiteral("Column Width"), QStringLiteral("Column width (characters):"),
      book.GetSheet(book.ActiveSheet()).ColumnWidth(book.SelFirstCol()), 0, 255, 2, &accepted);
  if (!accepted) return;
  try {
    book.SetColumnWidth(book.SelFirstCol(), book.SelLastCol(), width);
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app_->prompt, error);
  }
  RefreshReport();
}

void MainFrm::FormatNumber() {
  if (!app_) return;
  wb::Workbook& book = app_->state.ReportWorkbook();
  bool accepted = false;
  const QString format =
      QInputDialog::getText(this, QStringLiteral("Number Format"), QStringLiteral("Number format:"),
                            QLineEdit::Normal, QStringLiteral("0.00"), &accepted);
  if (!accepted) return;
  try {
    book.SetNumberFormat(format.toStdString());
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app_->prompt, error);
  }
  RefreshReport();
}

void MainFrm::PrintCommand() {
  if (!app_) return;
  try {
    report::PrintReport(app_->state.ReportWorkbook(), this);
  } catch (const wb::FacilityError& error) {
    if (error.Number() != wb::errc::kNoPrinter) {
      ReportFacilityError(app_->prompt, error);
      return;
    }
    try {
      OfferReportPdf(*app_);
    } catch (const wb::FacilityError& pdfError) {
      ReportFacilityError(app_->prompt, pdfError);
    }
  }
}

void MainFrm::PrintSetupCommand() {
  if (!app_) return;
  try {
    report::RunPrintSetup(this);
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app_->prompt, error);
  }
}

}  // namespace gustline
