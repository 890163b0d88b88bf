#include "core/workbook/model/Workbook.h"

#include <utility>

#include "core/workbook/model/BookRegistry.h"
#include "core/workbook/recalc/Recalc.h"
#include "core/workbook/value/FacilityError.h"
#include "core/workbook/value/TextCompare.h"

namespace gustline::wb {
namespace {

constexpr const char* kFirstSheetName = "Sheet1";

void CheckSheetName(std::string_view name) {
  if (name.empty() || name.size() > 31 || name.find_first_of("[]:*?/\\") != std::string::npos)
    throw FacilityError(errc::kBadArgument, "\"" + std::string(name) + "\" is no sheet name");
}

}  // namespace

Workbook::Workbook(const std::string& bookName)
    : id_(BookRegistry::Instance().NextId()), recalc_(std::make_unique<RecalcState>()) {
  SetBookName(bookName);
  sheets_.push_back(std::make_unique<Sheet>(kFirstSheetName, nextSheetId_++));
  BookRegistry::Instance().Add(this);
}

Workbook::~Workbook() {
  BookRegistry::Instance().Remove(this);
}

void Workbook::SetBookName(const std::string& name) {
  bookName_ = TrimBlanks(name);
}

void Workbook::SetActiveSheet(int sheet) {
  GetSheet(sheet);
  activeSheet_ = sheet - 1;
}

std::string Workbook::SheetName(int sheet) const {
  return GetSheet(sheet).Name();
}

void Workbook::SetSheetName(int sheet, std::string name) {
  Sheet& target = GetSheet(sheet);
  CheckSheetName(name);
  const int holder = FindSheet(name);
  if (holder != 0 && holder != sheet)
    throw FacilityError(errc::kBadArgument, "A sheet named \"" + name + "\" exists already");
  target.SetName(std::move(name));
  NoteChange(true);
}

bool Workbook::SheetSelected(int sheet) const {
  return GetSheet(sheet).selected;
}

void Workbook::SetSheetSelected(int sheet, bool selected) {
  GetSheet(sheet).selected = selected;
}

void Workbook::DeleteSheets(int firstSheet, int count) {
  GetSheet(firstSheet);
  if (count < 1 || firstSheet + count - 1 > SheetCount())
    throw FacilityError(errc::kBadSheet, "There are not " + std::to_string(count) +
                                             " sheets from sheet " + std::to_string(firstSheet));
  if (count == SheetCount())
    throw FacilityError(errc::kBadArgument, "A workbook keeps at least one sheet");
  const auto first = sheets_.begin() + (firstSheet - 1);
  sheets_.erase(first, first + count);
  if (activeSheet_ >= firstSheet - 1 + count)
    activeSheet_ -= count;
  else if (activeSheet_ >= firstSheet - 1)
    activeSheet_ = std::min(firstSheet - 1, SheetCount() - 1);
  NoteChange(true);
}

int Workbook::AddSheet(std::string name) {
  CheckSheetName(name);
  if (FindSheet(name) != 0)
    throw FacilityError(errc::kBadArgument, "A sheet named \"" + name + "\" exists already");
  sheets_.push_back(std::make_unique<Sheet>(std::move(name), nextSheetId_++));
  NoteChange(true);
  return SheetCount();
}

int Workbook::FindSheet(std::string_view name) const {
  for (std::size_t i = 0; i < sheets_.size(); ++i)
    if (EqualNoCase(sheets_[i]->Name(), name)) return static_cast<int>(i) + 1;
  return 0;
}

Sheet& Workbook::GetSheet(int sheet) {
  return const_cast<Sheet&>(static_cast<const Workbook&>(*this).GetSheet(sheet));
}

const Sheet& Workbook::GetSheet(int sheet) const {
  if (sheet < 1 || sheet > SheetCount())
    throw FacilityError(errc::kBadSheet, "Sheet " + std::to_string(sheet) + " does not exist");
  return *sheets_[static_cast<std::size_t>(sheet - 1)];
}

Sheet* Workbook::SheetById(std::uint32_t id) {
  const int index = SheetIndexById(id);
  return index < 0 ? nullptr : sheets_[static_cast<std::size_t>(index)].get();
}

int Workbook::SheetIndexById(std::uint32_t id) const {
  for (std::size_t i = 0; i < sheets_.size(); ++i)
    if (sheets_[i]->Id() == id) return static_cast<int>(i);
  return -1;
}

void Workbook::ClearAll() {
  sheets_.clear();
  sheets_.push_back(std::make_unique<Sheet>(kFirstSheetName, nextSheetId_++));
  activeSheet_ = 0;
  styles_.Clear();
  names_.Clear();
  NoteChange(true);
}

void Workbook::CopyContentOf(const Workbook& other) {
  if (&other == this) return;
  title_ = other.title_;
  sheets_.clear();
  for (const auto& sheet : other.sheets_) sheets_.push_back(std::make_unique<Sheet>(*sheet));
  nextSheetId_ = other.nextSheetId_;
  activeSheet_ = other.activeSheet_;
  styles_ = other.styles_;
  // The slots of names this book made since, undefined: formulas may be bound to them.
  DefinedNames names = other.names_;
  for (int slot = names.SlotCount(); slot < names_.SlotCount(); ++slot)
    if (names.Find(names_.At(slot).name) < 0) names.Slot(names_.At(slot).name);
  names_ = std::move(names);
  autoRecalc_ = other.autoRecalc_;
  iterationOn_ = other.iterationOn_;
  maxIterations_ = other.maxIterations_;
  maxChange_ = other.maxChange_;
  NoteChange(true);
}

}  // namespace gustline::wb
