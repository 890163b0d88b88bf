#pragma once

#include <QString>
#include <QWidget>
#include <memory>

namespace Ui {
class PrintPreview;
}

namespace gustline::wb {
class Workbook;
}

namespace gustline::report {

// A report page is 12240 by 15840 twips (8.5 by 11 inches).
inline constexpr double kPageWidthTwips = 12240;
inline constexpr double kPageHeightTwips = 15840;

// The text of cboPrevZoom after the user typed `typed` and pressed Enter: its leading
// number, kept within 10 to 200, with "%" ("5" gives "10%", "300" gives "200%").
QString NormalizePreviewZoom(const QString& typed);

// The scale of the drawn page for a text of cboPrevZoom: "Page Width" fills the width of
// the background less 400 twips, "Whole Page" its height less 200, a percentage / 100.
double PreviewScale(const QString& zoomText, double backgroundWidthTwips,
                    double backgroundHeightTwips);

// What a click on the page turns the zoom into: "100%" from "Whole Page" or "Page Width",
// "Whole Page" from anything else.
QString ZoomAfterClick(const QString& zoomText);

// Print preview: the report's pages drawn one at a time, as they print, on the grey
// background picBackGround, with the toolbar Toolbar2 (Print, Zoom, FullScreen, cboPrevZoom,
// cmdClose) and the page buttons ssPgUp and ssPgDn beside VScroll1.
//
// Use from the main window: Enter() after switching the menus and showing this widget in
// place of the report view; on CloseRequested, Leave(), then the view's SetZoom(100) and
// the menus back. PrintRequested and FullScreenRequested are the toolbar's Print and
// FullScreen buttons.
class PrintPreview : public QWidget {
  Q_OBJECT

 public:
  explicit PrintPreview(wb::Workbook& report, QWidget* parent = nullptr);
  ~PrintPreview() override;

  // Lays out and draws the active sheet's first page.
  void Enter();
  // The page setup's centring is discarded on every sheet of the book.
  void Leave();
  // Sizes picPage by the zoom and draws it; with `setScale` every sheet is centred
  // horizontally on its page from now on.
  void DrawPage(bool setScale);
  // ssPgDn and ssPgUp: the next or previous page; at the last or first a beep, no move.
  bool PageDown();
  bool PageUp();

  QString ZoomText() const;
  // Sets cboPrevZoom's text and draws the page anew.
  void SetZoomText(const QString& text);
  double Scale() const { return scale_; }
  int SheetPage() const { return sheetPage_; }

 signals:
  void PrintRequested();
  void FullScreenRequested();
  void CloseRequested();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  double TwipsPerPixel() const;
  void PlacePage();
  void PaintPage();
  void PaintShadow();
  void ClickPage(QPoint position);

  std::unique_ptr<Ui::PrintPreview> ui_;
  wb::Workbook& report_;
  double scale_ = 1;
  int sheetPage_ = 0;  // the page within the active sheet
};

}  // namespace gustline::report
