#include "ui/grid/qt/SheetGrid.h"

#include <QAbstractTableModel>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <algorithm>
#include <utility>

#include "core/workbook/model/Workbook.h"

namespace gustline::grid {
namespace {

class SystemClipboard : public TextClipboard {
 public:
  std::string Text() const override { return QGuiApplication::clipboard()->text().toStdString(); }
  void SetText(const std::string& text) override {
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
  }
};

}  // namespace

class SheetGridModel : public QAbstractTableModel {
 public:
  SheetGridModel(GridEditor& editor, Prompt& prompt, QStringList headings, int rows,
                 std::vector<int> editableColumns, QObject* parent)
      : QAbstractTableModel(parent),
        editor_(editor),
        prompt_(prompt),
        headings_(std::move(headings)),
        rows_(rows),
        editableColumns_(std::move(editableColumns)) {}

  int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(headings_.size());
  }

  QVariant data(const QModelIndex& index, int role) const override {
    wb::Workbook& book = editor_.Book();
    const int row = index.row() + 1;
    const int col = index.column() + 1;
    switch (role) {
      case Qt::DisplayRole:
        return QString::fromStdString(book.CellText(row, col));
      case Qt::EditRole:
        return QString::fromStdString(book.CellEntry(row, col));
      case Qt::TextAlignmentRole:
        return book.CellValue(row, col).IsNumber() ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                                   : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
      default:
        return {};
    }
  }

  bool setData(const QModelIndex& index, const QVariant& value, int role) override {
    if (role != Qt::EditRole) return false;
    const std::string entry = value.toString().toStdString();
    if (rule_) {
      if (const auto refusal = rule_(index.row() + 1, index.column() + 1, entry)) {
        prompt_.Show(*refusal);
        return false;
      }
    }
    editor_.Enter(index.row() + 1, index.column() + 1, entry);
    Refresh();
    return true;
  }

  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (role != Qt::DisplayRole) return {};
    if (orientation == Qt::Vertical) return section + 1;
    return section < headings_.size() ? headings_[section] : QVariant();
  }

  Qt::ItemFlags flags(const QModelIndex& index) const override {
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    if (std::ranges::find(editableColumns_, index.column() + 1) != editableColumns_.end())
      flags |= Qt::ItemIsEditable;
    return flags;
  }

  void SetEntryRule(EntryRule rule) { rule_ = std::move(rule); }

  // Formulas elsewhere in the grid may follow any change.
  void Refresh() {
    emit dataChanged(index(0, 0), index(rows_ - 1, static_cast<int>(headings_.size()) - 1));
  }

 private:
  GridEditor& editor_;
  Prompt& prompt_;
  EntryRule rule_;
  QStringList headings_;
  int rows_;
  std::vector<int> editableColumns_;
};

SheetGrid::SheetGrid(QWidget* parent) : QTableView(parent) {
  horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::AnyKeyPressed |
                  QAbstractItemView::EditKeyPressed);
}

SheetGrid::~SheetGrid() = default;

void SheetGrid::Attach(wb::Workbook& book, Prompt& prompt, const QStringList& headings, int rows,
                       std::vector<int> editableColumns) {
  clipboard_ = std::make_unique<SystemClipboard>();
  editor_ = std::make_unique<GridEditor>(book, *clipboard_, prompt);
  model_ = new SheetGridModel(*editor_, prompt, headings, rows, std::move(editableColumns), this);
  setModel(model_);
}

void SheetGrid::Refresh() {
  if (model_) model_->Refresh();
}

void SheetGrid::SetCurrentCell(int row, int col) {
  const QModelIndex cell = model_->index(row - 1, col - 1);
  setCurrentIndex(cell);
  selectionModel()->select(cell, QItemSelectionModel::ClearAndSelect);
}

void SheetGrid::EditCell(int row, int col) {
  SetCurrentCell(row, col);
  edit(currentIndex());
}

void SheetGrid::SetEntryRule(EntryRule rule) {
  model_->SetEntryRule(std::move(rule));
}

void SheetGrid::SelectToBook() {
  const QModelIndexList picked = selectionModel()->selectedIndexes();
  QModelIndex current = currentIndex();
  if (!current.isValid()) current = model_->index(0, 0);
  int firstRow = current.row();
  int lastRow = firstRow;
  int firstCol = current.column();
  int lastCol = firstCol;
  if (!picked.isEmpty()) {
    firstRow = lastRow = picked.front().row();
    firstCol = lastCol = picked.front().column();
    for (const QModelIndex& i : picked) {
      firstRow = std::min(firstRow, i.row());
      lastRow = std::max(lastRow, i.row());
      firstCol = std::min(firstCol, i.column());
      lastCol = std::max(lastCol, i.column());
    }
  }
  editor_->Book().SetSelectionRC(firstRow + 1, firstCol + 1, lastRow + 1, lastCol + 1);
}

void SheetGrid::SelectFromBook() {
  wb::Workbook& book = editor_->Book();
  const int lastRow = model_->rowCount({}) - 1;
  const int lastCol = model_->columnCount({}) - 1;
  const QModelIndex first = model_->index(std::min(book.SelFirstRow() - 1, lastRow),
                                          std::min(book.SelFirstCol() - 1, lastCol));
  const QModelIndex last = model_->index(std::min(book.SelLastRow() - 1, lastRow),
                                         std::min(book.SelLastCol() - 1, lastCol));
  setCurrentIndex(first);
  selectionModel()->select(QItemSelection(first, last), QItemSelectionModel::ClearAndSelect);
}

template <typename Command>
void SheetGrid::OnSelection(Command command) {
  SelectToBook();
  command(*editor_);
  Refresh();
}

void SheetGrid::CutCells() {
  OnSelection([](GridEditor& e) { e.Cut(); });
}
void SheetGrid::CopyCells() {
  OnSelection([](GridEditor& e) { e.Copy(); });
}
void SheetGrid::PasteCells() {
  OnSelection([](GridEditor& e) { e.Paste(); });
}
void SheetGrid::ClearCells() {
  OnSelection([](GridEditor& e) { e.Clear(); });
}
void SheetGrid::CopyCellsDown() {
  OnSelection([](GridEditor& e) { e.CopyDown(); });
}

QMenu* SheetGrid::EditMenu(QWidget* parent, const std::array<QString, 5>& captions) {
  auto* menu = new QMenu(parent);
  menu->setObjectName(QStringLiteral("mnuEdit"));
  const std::pair<const char*, void (SheetGrid::*)()> commands[] = {
      {"mnuCut", &SheetGrid::CutCells},
      {"mnuCopy", &SheetGrid::CopyCells},
      {"mnuPaste", &SheetGrid::PasteCells},
      {"mnuClear", &SheetGrid::ClearCells},
      {"mnuCopyDown", &SheetGrid::CopyCellsDown}};
  for (std::size_t i = 0; i < captions.size(); ++i) {
    QAction* action = menu->addAction(captions[i]);
    action->setObjectName(QString::fromLatin1(commands[i].first));
    connect(action, &QAction::triggered, this, commands[i].second);
  }
  return menu;
}

void SheetGrid::keyPressEvent(QKeyEvent* event) {
  if (state() != QAbstractItemView::EditingState && editor_) {
    if (event->matches(QKeySequence::Cut)) return CutCells();
    if (event->matches(QKeySequence::Copy)) return CopyCells();
    if (event->matches(QKeySequence::Paste)) return PasteCells();
    if (event->key() == Qt::Key_Delete) return ClearCells();
    if (event->key() == Qt::Key_D && event->modifiers() == Qt::ControlModifier)
      return CopyCellsDown();
  }
  QTableView::keyPressEvent(event);
}

void SheetGrid::contextMenuEvent(QContextMenuEvent* event) {
  const QModelIndex index = indexAt(event->pos());
  emit EditMenuRequested(index.isValid() ? index.row() + 1 : 0,
                         index.isValid() ? index.column() + 1 : 0, event->globalPos());
}

void SheetGrid::mousePressEvent(QMouseEvent* event) {
  QTableView::mousePressEvent(event);
  const QModelIndex index = indexAt(event->pos());
  if (event->button() == Qt::LeftButton && index.isValid())
    emit CellClicked(index.row() + 1, index.column() + 1);
}

}  // namespace gustline::grid
