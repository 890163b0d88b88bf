#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "buildings/QiChoice.h"
#include "core/Prompt.h"
#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The fields of the dialog of Figure 6-7, domed roofs of the main wind-force system, in feet.
struct Figure67Values {
  std::string rise;        // f
  std::string eaveHeight;  // hD
  std::string diameter;    // D
  bool useQz = false;      // rather than qi = qh
  std::string z;           // `Fig63Z`; a stored 0 shows `Height`
  int table64 = 1;         // the enclosure class read at opening
};

// The fields of the dialog of Figure 6-16, domed roofs of components and cladding, in feet.
// Their internal pressure is always taken with qh.
struct Fig616Values {
  std::string rise;
  std::string eaveHeight;
  std::string diameter;
};

inline constexpr std::string_view kDomeFormat = "0.00";

// The controls of the forms. The option array Option1 of Figure 6-7 is Option1_0 (qi = qh)
// and Option1_1 (qi = qz); qi and its height are stored by LoadFigure67 and SaveFigure67
// themselves, as in Figure 6-6.
inline constexpr rules::FormField<Figure67Values> kFigure67Fields[] = {
    {.control = "Text1", .member = &Figure67Values::rise, .cell = "DomeF", .format = kDomeFormat},
    {.control = "Text2",
     .member = &Figure67Values::eaveHeight,
     .cell = "DomehD",
     .format = kDomeFormat},
    {.control = "Text3",
     .member = &Figure67Values::diameter,
     .cell = "DomeD",
     .format = kDomeFormat},
    {.control = "Option1", .member = &Figure67Values::useQz},
    {.control = "Text4", .member = &Figure67Values::z},
};

inline constexpr rules::FormField<Fig616Values> kFig616Fields[] = {
    {.control = "Text1", .member = &Fig616Values::rise, .cell = "DomeF", .format = kDomeFormat},
    {.control = "Text2",
     .member = &Fig616Values::eaveHeight,
     .cell = "DomehD",
     .format = kDomeFormat},
    {.control = "Text3", .member = &Fig616Values::diameter, .cell = "DomeD", .format = kDomeFormat},
};

// Reads the dialog's cells; for a class other than partially enclosed it writes
// `Fig63UseQi` 0 at once.
Figure67Values LoadFigure67(wb::Workbook& project);
// Writes f, hD and D and the choice of qi; for a class other than partially enclosed, qi is
// qh and its height `Height`, whatever the fields held.
void SaveFigure67(wb::Workbook& project, const Figure67Values& values);

Fig616Values LoadFig616(wb::Workbook& project);
void SaveFig616(wb::Workbook& project, const Fig616Values& values);

// The box with which OK refuses a dome whose f/D lies outside 0.05 to 0.5, the range of
// Figure 6-7; nullopt for values that may be written.
std::optional<Message> Figure67Refusal(const Figure67Values& values);

// The box with which OK refuses a dome outside Figure 6-16: f/D from 0.2 to 0.5 and hD/D
// from 0 to 0.5, f/D tested first; nullopt for values that may be written.
std::optional<Message> Fig616Refusal(const Fig616Values& values);

}  // namespace gustline
