#pragma once

#include <functional>
#include <map>

#include "ui/frmWindPropScreens.h"

class QWidget;

namespace gustline {

struct Application;

// The dialogs of the procedures that the wind properties dialog opens but does not own,
// handed to it by the main window: the figure dialog of a List1 entry on the force
// coefficients tab, given the entry's `Figure`, the dialog of a List2 entry of open
// structures, and the pictures of the hill shapes on the topography tab.
struct FigureDialogs {
  std::map<FigureDialog, std::function<void(Application&, int figure, QWidget* parent)>> figures;
  std::map<TableDialog, std::function<void(Application&, QWidget* parent)>> tables;
  std::function<void(QWidget* parent)> topography;
};

}  // namespace gustline
