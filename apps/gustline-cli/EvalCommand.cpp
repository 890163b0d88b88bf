// gustline-cli eval: the values of formulas in a workbook, after writing cells as typed.
#include <algorithm>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "CliCommand.h"
#include "core/workbook/formula/Formula.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "core/workbook/value/Value.h"

namespace gustline::cli {
namespace {

constexpr const char* kUsage =
    "eval [--book FILE] [--cell REF=ENTRY]... FORMULA...   print the value of each =FORMULA";

struct EvalOptions {
  std::string bookPath;
  std::vector<std::pair<std::string, std::string>> cells;
  std::vector<std::string> formulas;
};

bool ParseEvalOptions(const std::vector<std::string>& args, EvalOptions& options) {
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (arg == "--book" || arg == "--cell") {
      if (i + 1 == args.size()) {
        std::cerr << "gustline-cli eval: " << arg << " needs a value\n";
        return false;
      }
      const std::string& value = args[++i];
      if (arg == "--book") {
        options.bookPath = value;
        continue;
      }
      const std::size_t equals = value.find('=');
      if (equals == std::string::npos || equals == 0) {
        std::cerr << "gustline-cli eval: --cell wants REF=ENTRY, not '" << value << "'\n";
        return false;
      }
      options.cells.emplace_back(value.substr(0, equals), value.substr(equals + 1));
    } else {
      options.formulas.push_back(arg);
    }
  }
  if (options.formulas.empty()) {
    std::cerr << "gustline-cli eval: no formula given\n";
    return false;
  }
  return true;
}

// Writes an entry as typed into the cell of an A1 text, on the sheet it names if any.
void WriteEntry(wb::Workbook& book, const std::string& ref, const std::string& entry) {
  const auto target = book.ResolveReference(ref);
  if (!target) throw wb::FacilityError(wb::errc::kBadReference, "Bad cell reference: " + ref);
  book.SetActiveSheet(target->first);
  book.SetCellEntry(target->second.firstRow, target->second.firstCol, entry);
}

int RunEval(const std::vector<std::string>& args) {
  EvalOptions options;
  if (!ParseEvalOptions(args, options)) return kExitUsage;
  try {
    auto book = std::make_unique<wb::Workbook>();
    if (!options.bookPath.empty()) book->ReadWorkbook(options.bookPath);
    for (const auto& [ref, entry] : options.cells) WriteEntry(*book, ref, entry);
    book->Recalc();
    // The formulas stand in the row below the used area of the active sheet.
    const wb::FormulaHost host{
        book.get(), book->ActiveSheet() - 1, {std::min(book->LastRow() + 1, wb::kMaxRow), 1}};
    std::vector<std::shared_ptr<const wb::Formula>> formulas;
    for (const std::string& text : options.formulas) {
      const std::string_view body =
          !text.empty() && text.front() == '=' ? std::string_view(text).substr(1) : text;
      formulas.push_back(wb::ParseFormula(body, host));
    }
    std::string lines;
    for (const auto& formula : formulas)
      lines += wb::PlainText(wb::Evaluate(*formula, host)) + '\n';
    std::cout << lines;
  } catch (const wb::FacilityError& error) {
    std::cerr << "gustline-cli eval: " << error.what() << '\n';
    return kExitUsage;
  }
  return kExitOk;
}

const bool registered = RegisterCommand("eval", kUsage, RunEval);

}  // namespace
}  // namespace gustline::cli
