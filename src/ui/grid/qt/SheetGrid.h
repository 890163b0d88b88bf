#pragma once

#include <QStringList>
#include <QTableView>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "core/Prompt.h"
#include "ui/grid/GridEditor.h"

class QMenu;

namespace gustline::grid {

class SheetGridModel;

// A check of what is typed into a cell (row and column from 1): the box that refuses it, or
// nullopt to take it.
using EntryRule = std::function<std::optional<Message>(int row, int col, std::string_view entry)>;

// An editable grid over the active sheet of a workbook of our engine: the rows from 1 to
// `rows` and one column for each heading, numbered from 1. Typing or double-clicking edits
// a cell of an editable column; Ctrl+X, Ctrl+C, Ctrl+V, Delete and Ctrl+D cut, copy,
// paste, clear and copy down the selection, through the system clipboard. The book's own
// formulas recalculate as the cells change. Whoever shows the grid owns the book.
class SheetGrid : public QTableView {
  Q_OBJECT

 public:
  SheetGrid(QWidget* parent = nullptr);
  ~SheetGrid() override;

  // Called once, before the grid is used.
  void Attach(wb::Workbook& book, Prompt& prompt, const QStringList& headings, int rows,
              std::vector<int> editableColumns);

  GridEditor& Editor() { return *editor_; }
  // The book's selection made the grid's, and back.
  void SelectFromBook();
  void SelectToBook();
  // Makes a cell (row and column from 1) the current one and the whole selection.
  void SetCurrentCell(int row, int col);
  // SetCurrentCell, with the cell open for typing.
  void EditCell(int row, int col);
  // Typing refused by the rule shows its box and leaves the cell as it was.
  void SetEntryRule(EntryRule rule);
  // Shows the book as it now stands.
  void Refresh();

  // The edit menu's commands on the grid's selection.
  void CutCells();
  void CopyCells();
  void PasteCells();
  void ClearCells();
  void CopyCellsDown();
  // The five commands above as a context menu owned by `parent`, captions in that order,
  // its actions named mnuCut, mnuCopy, mnuPaste, mnuClear and mnuCopyDown.
  QMenu* EditMenu(QWidget* parent, const std::array<QString, 5>& captions);

 signals:
  // A right click, at the cell under the pointer (row and column from 1).
  void EditMenuRequested(int row, int col, const QPoint& globalPos);
  // A click on a cell, row and column from 1.
  void CellClicked(int row, int col);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  template <typename Command>
  void OnSelection(Command command);

  std::unique_ptr<TextClipboard> clipboard_;
  std::unique_ptr<GridEditor> editor_;
  SheetGridModel* model_ = nullptr;
};

}  // namespace gustline::grid
