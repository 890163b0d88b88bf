#pragma once

#include "core/workbook/formula/Evaluator.h"

namespace gustline::wb::functions {

// The bodies that the rows of the function table (FunctionsTable.cpp) point to.

// FunctionsLogic.cpp
Operand And(Evaluator& ev, const Formula::Node& node);
Operand Choose(Evaluator& ev, const Formula::Node& node);
Operand If(Evaluator& ev, const Formula::Node& node);
Operand IsNa(Evaluator& ev, const Formula::Node& node);
Operand Na(Evaluator& ev, const Formula::Node& node);
Operand IsNumber(Evaluator& ev, const Formula::Node& node);
Operand IsText(Evaluator& ev, const Formula::Node& node);
Operand Or(Evaluator& ev, const Formula::Node& node);

// FunctionsLookup.cpp
Operand Index(Evaluator& ev, const Formula::Node& node);
Operand Match(Evaluator& ev, const Formula::Node& node);
Operand VLookup(Evaluator& ev, const Formula::Node& node);

// FunctionsMath.cpp
Operand Abs(Evaluator& ev, const Formula::Node& node);
Operand Exp(Evaluator& ev, const Formula::Node& node);
Operand Ln(Evaluator& ev, const Formula::Node& node);
Operand Max(Evaluator& ev, const Formula::Node& node);
Operand Min(Evaluator& ev, const Formula::Node& node);
Operand Now(Evaluator& ev, const Formula::Node& node);
Operand Round(Evaluator& ev, const Formula::Node& node);
Operand Sign(Evaluator& ev, const Formula::Node& node);
Operand Sqrt(Evaluator& ev, const Formula::Node& node);
Operand Sum(Evaluator& ev, const Formula::Node& node);

// FunctionsText.cpp
Operand Code(Evaluator& ev, const Formula::Node& node);
Operand Concatenate(Evaluator& ev, const Formula::Node& node);
Operand ValueOf(Evaluator& ev, const Formula::Node& node);

}  // namespace gustline::wb::functions
