#include "report/qt/SheetRenderer.h"

#include <QDateTime>
#include <QFont>
#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>

#include "core/workbook/model/Sheet.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/CellStyle.h"
#include "core/workbook/value/NumberFormat.h"

namespace gustline::report {
namespace {

constexpr double kPointsPerInch = 72;
constexpr double kTextPadding = 1.5;  // 2 px at 96 dpi between a cell's edge and its text
constexpr double kMinimumScale = 0.1;
constexpr double kMaximumScale = 4;
constexpr std::uint32_t kWhite = 0xFFFFFF;
constexpr std::uint32_t kGridColor = 0xC0C0C0;

bool ShowsOnPaper(const wb::CellStyle& style) {
  return style.fill != kWhite || style.left.style != 0 || style.right.style != 0 ||
         style.top.style != 0 || style.bottom.style != 0;
}

QColor ColorOf(std::uint32_t rgb, bool noColor) {
  return noColor ? QColor(Qt::black) : QColor::fromRgb(rgb);
}

// Ranks line styles so that of two borders on one edge the heavier shows.
int BorderWeight(int style) {
  static constexpr std::array<int, 7> kWeights = {0, 3, 4, 2, 1, 6, 5};
  return style >= 0 && style < static_cast<int>(kWeights.size())
             ? kWeights[static_cast<std::size_t>(style)]
             : 0;
}

const wb::Border& Heavier(const wb::Border& a, const wb::Border& b) {
  return BorderWeight(b.style) > BorderWeight(a.style) ? b : a;
}

// A pen of `width` points; on a coarse device it never gets thinner than one pixel.
QPen LinePen(QPainter& painter, double width, QColor color, Qt::PenStyle style) {
  QPen pen(color, width, style, Qt::FlatCap);
  if (width * painter.deviceTransform().m11() < 1) {
    pen.setCosmetic(true);
    pen.setWidthF(1);
  }
  return pen;
}

void DrawBorderLine(QPainter& painter, QPointF from, QPointF to, const wb::Border& border,
                    bool noColor) {
  const QColor color = ColorOf(border.color, noColor);
  switch (border.style) {
    case 1:
      painter.setPen(LinePen(painter, 0.5, color, Qt::SolidLine));
      break;
    case 2:
      painter.setPen(LinePen(painter, 1.25, color, Qt::SolidLine));
      break;
    case 3:
      painter.setPen(LinePen(painter, 0.5, color, Qt::DashLine));
      break;
    case 4:
      painter.setPen(LinePen(painter, 0.5, color, Qt::DotLine));
      break;
    case 5:
      painter.setPen(LinePen(painter, 2, color, Qt::SolidLine));
      break;
    case 6: {
      painter.setPen(LinePen(painter, 0.5, color, Qt::SolidLine));
      const bool horizontal = from.y() == to.y();
      const QPointF offset = horizontal ? QPointF(0, 1) : QPointF(1, 0);
      painter.drawLine(from - offset, to - offset);
      painter.drawLine(from + offset, to + offset);
      return;
    }
    default:
      return;
  }
  painter.drawLine(from, to);
}

// Where the workbooks' fonts are missing, fonts of the same widths stand in for them, and
// failing those the narrow cut of a common family, so that texts fit their columns as the
// templates were laid out.
void SubstituteWorkbookFonts() {
  [[maybe_unused]] static const bool done = [] {
    QFont::insertSubstitutions(QStringLiteral("Arial"),
                               {QStringLiteral("Liberation Sans"), QStringLiteral("Arimo"),
                                QStringLiteral("DejaVu Sans Condensed")});
    QFont::insertSubstitutions(QStringLiteral("Times New Roman"),
                               {QStringLiteral("Liberation Serif"), QStringLiteral("Tinos"),
                                QStringLiteral("DejaVu Serif Condensed")});
    QFont::insertSubstitutions(QStringLiteral("Courier New"),
                               {QStringLiteral("Liberation Mono"), QStringLiteral("Cousine"),
                                QStringLiteral("DejaVu Sans Mono")});
    return true;
  }();
}

// The font of a cell, sized so that one unit of the painter's user space is one point.
QFont CellFont(const wb::Font& font, const QPaintDevice* device) {
  SubstituteWorkbookFonts();
  QFont qfont(QString::fromStdString(font.name));
  qfont.setStyleHint(QFont::SansSerif);
  qfont.setHintingPreference(QFont::PreferNoHinting);
  // No ligatures, so that the text of a PDF reads and searches letter by letter.
  qfont.setStyleStrategy(QFont::PreferNoShaping);
  const int dpi = device != nullptr && device->logicalDpiY() > 0 ? device->logicalDpiY() : 72;
  qfont.setPointSizeF(std::max(1.0, font.size) * kPointsPerInch / dpi);
  qfont.setBold(font.bold);
  qfont.setItalic(font.italic);
  qfont.setUnderline(font.underline);
  return qfont;
}

Qt::Alignment Horizontal(wb::HAlign align, const wb::Value& value) {
  switch (align) {
    case wb::HAlign::Left:
      return Qt::AlignLeft;
    case wb::HAlign::Center:
      return Qt::AlignHCenter;
    case wb::HAlign::Right:
      return Qt::AlignRight;
    case wb::HAlign::General:
      break;
  }
  if (value.IsNumber()) return Qt::AlignRight;
  if (value.IsBoolean() || value.IsError()) return Qt::AlignHCenter;
  return Qt::AlignLeft;
}

Qt::Alignment Vertical(wb::VAlign align) {
  switch (align) {
    case wb::VAlign::Top:
      return Qt::AlignTop;
    case wb::VAlign::Center:
      return Qt::AlignVCenter;
    case wb::VAlign::Bottom:
      break;
  }
  return Qt::AlignBottom;
}

// A number that is wider than its cell, or that its format cannot show, fills the cell with
// "#", as a spreadsheet shows it, rather than as digits cut off.
QString FittedNumber(const QString& text, const QFontMetricsF& metrics, double width) {
  const bool overflow = text == QLatin1String(wb::kOverflowMarks.data(),
                                              static_cast<qsizetype>(wb::kOverflowMarks.size()));
  if (!overflow && metrics.horizontalAdvance(text) <= width + 0.01) return text;
  const double hash = metrics.horizontalAdvance(u'#');
  return QString(static_cast<qsizetype>(std::max(0.0, std::floor(width / hash))), u'#');
}

std::string DateText(const char* format) {
  return QDateTime::currentDateTime().toString(QString::fromLatin1(format)).toStdString();
}

// The edges of one sheet's area that carry a border, each the heavier of the two cells'.
class BorderGrid {
 public:
  explicit BorderGrid(const wb::Area& area)
      : area_(area),
        cols_(area.lastCol - area.firstCol + 1),
        rows_(area.lastRow - area.firstRow + 1),
        horizontal_(static_cast<std::size_t>((rows_ + 1) * cols_)),
        vertical_(static_cast<std::size_t>(rows_ * (cols_ + 1))) {}

  void Add(int row, int col, const wb::CellStyle& style) {
    Merge(horizontal_[H(row, col)], style.top);
    Merge(horizontal_[H(row + 1, col)], style.bottom);
    Merge(vertical_[V(row, col)], style.left);
    Merge(vertical_[V(row, col + 1)], style.right);
  }

  // Draws the edges, joining neighbouring segments of one style into one line.
  void Draw(QPainter& painter, const GridLayout& grid, bool noColor) const {
    for (int edge = area_.firstRow; edge <= area_.lastRow + 1; ++edge) {
      const double y = grid.RowY(edge);
      for (int col = area_.firstCol; col <= area_.lastCol;) {
        const wb::Border& border = horizontal_[H(edge, col)];
        int end = col + 1;
        while (end <= area_.lastCol && horizontal_[H(edge, end)] == border) ++end;
        if (border.style != 0)
          DrawBorderLine(painter, {grid.ColX(col), y}, {grid.ColX(end), y}, border, noColor);
        col = end;
      }
    }
    for (int edge = area_.firstCol; edge <= area_.lastCol + 1; ++edge) {
      const double x = grid.ColX(edge);
      for (int row = area_.firstRow; row <= area_.lastRow;) {
        const wb::Border& border = vertical_[V(row, edge)];
        int end = row + 1;
        while (end <= area_.lastRow && vertical_[V(end, edge)] == border) ++end;
        if (border.style != 0)
          DrawBorderLine(painter, {x, grid.RowY(row)}, {x, grid.RowY(end)}, border, noColor);
        row = end;
      }
    }
  }

 private:
  static std::size_t Index(int row, int width, int col) {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(width) +
           static_cast<std::size_t>(col);
  }
  std::size_t H(int edgeRow, int col) const {
    return Index(edgeRow - area_.firstRow, cols_, col - area_.firstCol);
  }
  std::size_t V(int row, int edgeCol) const {
    return Index(row - area_.firstRow, cols_ + 1, edgeCol - area_.firstCol);
  }
  static void Merge(wb::Border& edge, const wb::Border& border) { edge = Heavier(edge, border); }

  wb::Area area_;
  int cols_;
  int rows_;
  std::vector<wb::Border> horizontal_;
  std::vector<wb::Border> vertical_;
};

}  // namespace

QRectF GridLayout::AreaRect(const wb::Area& area) const {
  return QRectF(QPointF(ColX(area.firstCol), RowY(area.firstRow)),
                QPointF(ColX(area.lastCol + 1), RowY(area.lastRow + 1)));
}

double RowHeightForFont(double fontSize) {
  const double steps = std::ceil(fontSize * kDefaultRowHeight / 10 / 0.75 - 1e-6);
  return std::max(kDefaultRowHeight, steps * 0.75);
}

GridLayout MakeGridLayout(const wb::Sheet& sheet, const wb::StyleTable& styles, int rows,
                          int cols) {
  rows = std::max(rows, 0);
  cols = std::max(cols, 0);
  std::vector<double> largestFont(static_cast<std::size_t>(rows), 0);
  sheet.ForEachCell([&](int row, int col, const wb::Cell& cell) {
    if (row > rows || col > cols || !cell.HasContent()) return;
    auto& largest = largestFont[static_cast<std::size_t>(row - 1)];
    largest = std::max(largest, styles.Get(cell.style).font.size);
  });
  GridLayout grid;
  grid.colEdges.reserve(static_cast<std::size_t>(cols) + 1);
  grid.colEdges.push_back(0);
  for (int col = 1; col <= cols; ++col)
    grid.colEdges.push_back(grid.colEdges.back() +
                            std::max(0.0, sheet.ColumnWidth(col)) * kPointsPerWidthUnit);
  grid.rowEdges.reserve(static_cast<std::size_t>(rows) + 1);
  grid.rowEdges.push_back(0);
  for (int row = 1; row <= rows; ++row) {
    const double height =
        sheet.RowHidden(row) ? 0 : RowHeightForFont(largestFont[static_cast<std::size_t>(row - 1)]);
    grid.rowEdges.push_back(grid.rowEdges.back() + height);
  }
  return grid;
}

wb::Area PrintExtent(const wb::Sheet& sheet, const wb::StyleTable& styles) {
  const std::string& printArea = sheet.Print().printArea;
  if (!printArea.empty()) {
    const auto bang = printArea.rfind('!');
    const auto area =
        wb::ParseAreaText(bang == std::string::npos ? std::string_view(printArea)
                                                    : std::string_view(printArea).substr(bang + 1));
    if (area) return *area;
  }
  wb::Area extent{1, 1, 1, 1};
  sheet.ForEachCell([&](int row, int col, const wb::Cell& cell) {
    if (!cell.HasContent() && !ShowsOnPaper(styles.Get(cell.style))) return;
    extent.lastRow = std::max(extent.lastRow, row);
    extent.lastCol = std::max(extent.lastCol, col);
  });
  return extent;
}

double PrintScaleFactor(const wb::PrintSetup& setup, QSizeF content, QSizeF printable) {
  double scale = setup.scale / 100;
  if (setup.fitToPages) {
    scale = 1;
    if (content.width() > 0)
      scale = std::min(scale, std::max(1, setup.pagesWide) * printable.width() / content.width());
    if (content.height() > 0)
      scale = std::min(scale, std::max(1, setup.pagesTall) * printable.height() / content.height());
  }
  return std::clamp(scale, kMinimumScale, kMaximumScale);
}

std::vector<int> PageBreaks(const std::vector<double>& edges, int first, int last,
                            double available) {
  std::vector<int> starts{first};
  double start = edges[static_cast<std::size_t>(first - 1)];
  for (int item = first; item <= last; ++item) {
    const double end = edges[static_cast<std::size_t>(item)];
    if (item > starts.back() && end - start > available + 1e-9) {
      starts.push_back(item);
      start = edges[static_cast<std::size_t>(item - 1)];
    }
  }
  return starts;
}

HeaderFooterText ExpandHeaderFooter(std::string_view code, const PageContext& context) {
  HeaderFooterText text;
  std::string* section = &text.center;
  for (std::size_t i = 0; i < code.size(); ++i) {
    if (code[i] != '&') {
      section->push_back(code[i]);
      continue;
    }
    if (++i == code.size()) break;
    switch (std::toupper(static_cast<unsigned char>(code[i]))) {
      case 'L':
        section = &text.left;
        break;
      case 'C':
        section = &text.center;
        break;
      case 'R':
        section = &text.right;
        break;
      case 'A':
        *section += context.sheetName;
        break;
      case 'F':
        *section += context.bookName;
        break;
      case 'P':
        *section += std::to_string(context.page);
        break;
      case 'N':
        *section += std::to_string(context.pages);
        break;
      case 'D':
        *section += DateText("M/d/yyyy");
        break;
      case 'T':
        *section += DateText("h:mm AP");
        break;
      case '&':
        section->push_back('&');
        break;
      case '"': {
        const auto close = code.find('"', i + 1);
        i = close == std::string_view::npos ? code.size() : close;
        break;
      }
      default:
        while (i + 1 < code.size() && std::isdigit(static_cast<unsigned char>(code[i + 1]))) ++i;
        break;
    }
  }
  return text;
}

SheetPrintLayout LayOutSheetForPrint(const wb::Sheet& sheet, const wb::StyleTable& styles) {
  const wb::PrintSetup& setup = sheet.Print();
  const wb::Area extent = PrintExtent(sheet, styles);
  SheetPrintLayout layout;
  layout.grid = MakeGridLayout(sheet, styles, extent.lastRow, extent.lastCol);
  layout.paper =
      setup.landscape ? QSizeF(kPageHeight, kPageWidth) : QSizeF(kPageWidth, kPageHeight);
  const double left = std::max(0.0, setup.leftMargin) * kPointsPerInch;
  const double top = std::max(0.0, setup.topMargin) * kPointsPerInch;
  const double width =
      layout.paper.width() - left - std::max(0.0, setup.rightMargin) * kPointsPerInch;
  const double height =
      layout.paper.height() - top - std::max(0.0, setup.bottomMargin) * kPointsPerInch;
  // Margins that leave less than an inch are taken as leaving an inch.
  layout.printable = QRectF(std::min(left, layout.paper.width() - kPointsPerInch),
                            std::min(top, layout.paper.height() - kPointsPerInch),
                            std::max(width, kPointsPerInch), std::max(height, kPointsPerInch));
  const QRectF content = layout.grid.AreaRect(extent);
  layout.scale = PrintScaleFactor(setup, content.size(), layout.printable.size());
  const auto colStarts = PageBreaks(layout.grid.colEdges, extent.firstCol, extent.lastCol,
                                    layout.printable.width() / layout.scale);
  const auto rowStarts = PageBreaks(layout.grid.rowEdges, extent.firstRow, extent.lastRow,
                                    layout.printable.height() / layout.scale);
  for (std::size_t c = 0; c < colStarts.size(); ++c) {
    const int lastCol = c + 1 < colStarts.size() ? colStarts[c + 1] - 1 : extent.lastCol;
    for (std::size_t r = 0; r < rowStarts.size(); ++r) {
      const int lastRow = r + 1 < rowStarts.size() ? rowStarts[r + 1] - 1 : extent.lastRow;
      const wb::Area cells{rowStarts[r], colStarts[c], lastRow, lastCol};
      const QSizeF size = layout.grid.AreaRect(cells).size() * layout.scale;
      QPointF origin = layout.printable.topLeft();
      if (setup.hCenter)
        origin.rx() += std::max(0.0, (layout.printable.width() - size.width()) / 2);
      if (setup.vCenter)
        origin.ry() += std::max(0.0, (layout.printable.height() - size.height()) / 2);
      layout.pages.push_back({cells, origin});
    }
  }
  return layout;
}

void DrawCells(QPainter& painter, const wb::Sheet& sheet, const wb::StyleTable& styles,
               const GridLayout& grid, const wb::Area& area, const CellPaintOptions& options,
               const QRectF& clip) {
  if (area.lastRow < area.firstRow || area.lastCol < area.firstCol) return;
  painter.save();
  const QPointF areaOrigin(grid.ColX(area.firstCol), grid.RowY(area.firstRow));
  painter.translate(-areaOrigin);
  const QRectF limit = clip.isEmpty() ? QRectF() : clip.translated(areaOrigin);
  const auto visible = [&](int row, int col) {
    return grid.RowHeight(row) > 0 && grid.ColWidth(col) > 0;
  };
  const auto cellRect = [&](int row, int col) {
    return QRectF(grid.ColX(col), grid.RowY(row), grid.ColWidth(col), grid.RowHeight(row));
  };

  for (int row = area.firstRow; row <= area.lastRow; ++row)
    for (int col = area.firstCol; col <= area.lastCol; ++col) {
      const wb::Cell* cell = sheet.Find(row, col);
      if (cell == nullptr || !visible(row, col) || options.noColor) continue;
      const std::uint32_t fill = styles.Get(cell->style).fill;
      if (fill != kWhite) painter.fillRect(cellRect(row, col), QColor::fromRgb(fill));
    }

  if (options.gridLines) {
    painter.setPen(LinePen(painter, 0.5, ColorOf(kGridColor, options.noColor), Qt::SolidLine));
    const QRectF whole = grid.AreaRect(area);
    for (int row = area.firstRow; row <= area.lastRow + 1; ++row)
      painter.drawLine(QPointF(whole.left(), grid.RowY(row)),
                       QPointF(whole.right(), grid.RowY(row)));
    for (int col = area.firstCol; col <= area.lastCol + 1; ++col)
      painter.drawLine(QPointF(grid.ColX(col), whole.top()),
                       QPointF(grid.ColX(col), whole.bottom()));
  }

  const double rightLimit = limit.isEmpty() ? grid.ColX(area.lastCol + 1) : limit.right();
  for (int row = area.firstRow; row <= area.lastRow; ++row) {
    if (grid.RowHeight(row) <= 0) continue;
    for (int col = area.firstCol; col <= area.lastCol; ++col) {
      const wb::Cell* cell = sheet.Find(row, col);
      if (cell == nullptr || !cell->HasContent() || !visible(row, col)) continue;
      const wb::CellStyle& style = styles.Get(cell->style);
      const std::string text = wb::DisplayText(cell->value, style.numberFormat);
      if (text.empty()) continue;
      const QFont font = CellFont(style.font, painter.device());
      painter.setFont(font);
      painter.setPen(ColorOf(style.font.color, options.noColor));
      const Qt::Alignment horizontal = Horizontal(style.hAlign, cell->value);
      QString qtext = QString::fromStdString(text);
      QRectF box = cellRect(row, col);
      int flags = horizontal | Vertical(style.vAlign);
      const QFontMetricsF metrics(font, painter.device());
      if (style.wrap) {
        flags |= Qt::TextWordWrap;
      } else if (cell->value.IsNumber()) {
        qtext = FittedNumber(qtext, metrics, box.width() - 2 * kTextPadding);
      } else if (horizontal == Qt::AlignLeft) {
        // Left text runs on into the empty cells to its right.
        const double needed = metrics.horizontalAdvance(qtext) + 2 * kTextPadding;
        int next = col + 1;
        while (box.width() < needed) {
          if (next > area.lastCol) {
            if (area.lastCol == grid.Cols()) box.setRight(std::max(box.right(), rightLimit));
            break;
          }
          const wb::Cell* neighbour = sheet.Find(row, next);
          if (neighbour != nullptr && neighbour->HasContent()) break;
          box.setRight(grid.ColX(next + 1));
          ++next;
        }
      }
      painter.drawText(box.adjusted(kTextPadding, 0, -kTextPadding, -0.75), flags, qtext);
    }
  }

  BorderGrid borders(area);
  for (int row = area.firstRow; row <= area.lastRow; ++row)
    for (int col = area.firstCol; col <= area.lastCol; ++col) {
      const wb::Cell* cell = sheet.Find(row, col);
      if (cell != nullptr && visible(row, col)) borders.Add(row, col, styles.Get(cell->style));
    }
  borders.Draw(painter, grid, options.noColor);
  painter.restore();
}

int SheetPageCount(wb::Workbook& book, int sheet) {
  const wb::Sheet& page = book.GetSheet(sheet);
  return static_cast<int>(LayOutSheetForPrint(page, book.Styles()).pages.size());
}

void DrawSheetPage(QPainter& painter, const QRectF& target, wb::Workbook& book, int sheet, int page,
                   int number, int numberOfPages) {
  book.EnsureCalculated();
  DrawSheetPage(painter, target, book, sheet,
                LayOutSheetForPrint(book.GetSheet(sheet), book.Styles()), page, number,
                numberOfPages);
}

void DrawSheetPage(QPainter& painter, const QRectF& target, wb::Workbook& book, int sheet,
                   const SheetPrintLayout& layout, int page, int number, int numberOfPages) {
  const wb::Sheet& source = book.GetSheet(sheet);
  const int pageCount = static_cast<int>(layout.pages.size());
  page = std::clamp(page, 0, pageCount - 1);
  const wb::PrintSetup& setup = source.Print();

  painter.save();
  painter.translate(target.topLeft());
  painter.scale(target.width() / layout.paper.width(), target.height() / layout.paper.height());
  painter.fillRect(QRectF(QPointF(0, 0), layout.paper), Qt::white);
  painter.setRenderHint(QPainter::TextAntialiasing);

  const PageContext context{source.Name(), book.BookName(), number > 0 ? number : page + 1,
                            numberOfPages > 0 ? numberOfPages : pageCount};
  const double inset = std::max(layout.printable.left(), kPointsPerInch / 4);
  const double sideWidth =
      layout.paper.width() - inset -
      std::max(layout.paper.width() - layout.printable.right(), kPointsPerInch / 4);
  const auto drawBand = [&](const std::string& code, double top, double height) {
    if (code.empty()) return;
    const HeaderFooterText text = ExpandHeaderFooter(code, context);
    painter.setFont(CellFont(wb::Font{}, painter.device()));
    painter.setPen(Qt::black);
    const QRectF band(inset, top, sideWidth, height);
    const int flags = Qt::AlignVCenter | Qt::TextDontClip;
    painter.drawText(band, flags | Qt::AlignLeft, QString::fromStdString(text.left));
    painter.drawText(band, flags | Qt::AlignHCenter, QString::fromStdString(text.center));
    painter.drawText(band, flags | Qt::AlignRight, QString::fromStdString(text.right));
  };
  drawBand(setup.header, 0, layout.printable.top());
  drawBand(setup.footer, layout.printable.bottom(),
           layout.paper.height() - layout.printable.bottom());

  const PrintedPage& printed = layout.pages[static_cast<std::size_t>(page)];
  painter.translate(printed.origin);
  painter.scale(layout.scale, layout.scale);
  const QRectF clip((layout.printable.topLeft() - printed.origin) / layout.scale,
                    layout.printable.size() / layout.scale);
  painter.setClipRect(clip);
  DrawCells(painter, source, book.Styles(), layout.grid, printed.cells,
            {setup.gridLines, setup.noColor}, clip);
  painter.restore();
}

}  // namespace gustline::report
