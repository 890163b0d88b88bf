#include "geometry/qt/frmViewChart.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputDialog>
#include <QMenu>
#include <QPrintDialog>
#include <QPrinter>

#include "core/Prompt.h"
#include "geometry/OutlineBoundaries.h"
#include "geometry/qt/OutlineChart.h"
#include "ui_frmViewChart.h"

namespace gustline::geometry {

frmViewChart::frmViewChart(Prompt& prompt, QWidget* parent)
    : QDialog(parent), prompt_(prompt), ui_(std::make_unique<Ui::frmViewChart>()) {
  ui_->setupUi(this);
  popup_ = new QMenu(this);
  popup_->setObjectName(QStringLiteral("mnuPopUp"));
  const auto add = [this](const char* name, const QString& caption, auto handler) {
    QAction* action = popup_->addAction(caption);
    action->setObjectName(QString::fromLatin1(name));
    connect(action, &QAction::triggered, this, handler);
  };
  add("mnuCopy", QStringLiteral("&Copy to Clipboard"), [this] { CopyPicture(); });
  add("mnuPrint", QStringLiteral("&Print..."), [this] { PrintPicture(); });
  add("mnuTitle", QStringLiteral("Graph Title..."), [this] { AskTitle(); });
  add("mnuClose", QStringLiteral("Close View"), [this] { hide(); });
  connect(ui_->MSChart1, &OutlineChart::PopupRequested, popup_,
          [this](const QPoint& at) { popup_->popup(at); });
}

frmViewChart::~frmViewChart() = default;

OutlineChart& frmViewChart::Chart() const {
  return *ui_->MSChart1;
}

bool frmViewChart::ViewGeometry(wb::Workbook& grid, std::vector<double> cutHeights) {
  if (const auto undefined = UndefinedGeometry(grid)) {
    prompt_.Show(*undefined);
    return false;
  }
  OutlinePlot plot;
  plot.title = Chart().Plot().title;
  plot.boundaries = GridBoundaries(grid);
  plot.cutHeights = std::move(cutHeights);
  Chart().SetPlot(std::move(plot));
  return true;
}

void frmViewChart::CopyPicture() {
  QGuiApplication::clipboard()->setImage(OutlineImage(Chart().Plot(), Chart().size()));
}

void frmViewChart::PrintPicture() {
  CopyPicture();
  QPrinter printer(QPrinter::HighResolution);
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() == QDialog::Accepted) PrintOutline(printer, Chart().Plot());
}

void frmViewChart::AskTitle() {
  bool accepted = false;
  const QString title =
      QInputDialog::getText(this, QStringLiteral("Graph Title"), QStringLiteral("Enter Title : "),
                            QLineEdit::Normal, Chart().Plot().title, &accepted);
  if (!accepted) return;
  OutlinePlot plot = Chart().Plot();
  plot.title = title;
  Chart().SetPlot(std::move(plot));
}

}  // namespace gustline::geometry
