#pragma once

#include <string>
#include <string_view>

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The sections of the project workbook that its inspector lists, each the caption of a
// defined name over the section's first row.
inline constexpr std::string_view kWindDataSections[] = {
    "Headings",      "Design Equation", "Wind Data",
    "Topography",    "Dimensions",      "Physical Properties",
    "Gust Response", "Heights",         "Figures And Tables",
    "Fig_63",        "Fig_64",          "Fig_65A",
    "Fig_65B",       "Fig_66",          "Fig_67A",
    "Fig_67B",       "Fig_68",          "Table_64",
    "Table_65",      "Table_66",        "Table_67",
    "Table_68",      "Table_69",        "Table_6_10"};

// The defined name of a section: its caption without blanks, two of them shortened.
std::string SectionName(std::string_view caption);

// Selects the section's name and brings its first row to the top of the view; false, and
// nothing moved, for a name the book does not define.
bool GoToSection(wb::Workbook& project, std::string_view caption);

// What the inspector prints of the project: A1:B109 of the first sheet.
void SetInspectorPrintArea(wb::Workbook& project);

}  // namespace gustline
