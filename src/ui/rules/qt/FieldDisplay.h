#pragma once

class QWidget;

namespace gustline::rules {

// Every text box of the form at least as wide as the text it holds, so that the whole of
// it shows when the form comes up.
void FitTextBoxes(QWidget& form);

// The tab pages that hold the control brought forward, so that it can take the focus.
void BringForward(QWidget& control);

}  // namespace gustline::rules
