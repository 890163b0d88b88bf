#include "structures/qt/IntervalGrid.h"

#include <QMenu>
#include <utility>
#include <vector>

#include "core/Prompt.h"
#include "core/workbook/model/Workbook.h"
#include "structures/IntervalValues.h"
#include "ui/grid/qt/SheetGrid.h"

namespace gustline {

int ShowIntervalGrid(grid::SheetGrid& grid, wb::Workbook& book, wb::Workbook& project,
                     Prompt& prompt, const QStringList& listHeadings,
                     std::span<const std::string> lists) {
  const int rows = FillIntervalGrid(book, ProjectHeightRows(project), lists);
  std::vector<int> editable;
  for (int col = 3; col < 3 + static_cast<int>(lists.size()); ++col) editable.push_back(col);
  grid.Attach(
      book, prompt,
      QStringList{QStringLiteral("From\n[ ft ]"), QStringLiteral("To\n[ ft ]")} + listHeadings,
      rows, std::move(editable));
  grid.SelectFromBook();
  return rows;
}

void AddIntervalGridMenu(grid::SheetGrid& grid, const std::array<QString, 5>& captions) {
  QMenu* menu = grid.EditMenu(&grid, captions);
  QObject::connect(&grid, &grid::SheetGrid::EditMenuRequested, menu,
                   [&grid, menu](int row, int col, const QPoint& at) {
                     if (row > 0) grid.SetCurrentCell(row, col);
                     menu->exec(at);
                   });
}

bool CheckIntervalGrid(grid::SheetGrid& grid, Prompt& prompt, std::span<const int> cols, int rows,
                       bool positive) {
  const auto fault = FindGridFault(grid.Editor().Book(), cols, rows, positive);
  if (!fault) return true;
  prompt.Show(fault->message);
  grid.EditCell(fault->row, fault->col);
  return false;
}

}  // namespace gustline
