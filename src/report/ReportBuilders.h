#pragma once

#include <string>

namespace gustline {
class Prompt;
}

namespace gustline::geometry {
struct AreaContext;
}

namespace gustline::wb {
class Workbook;
}

namespace gustline::report {

// The builders of the reports, one per kind of template; the catalog row of a template
// names its builder. A builder reaches into its template only by the defined names listed
// below, which the template's blocks define; a template that lacks one the builder touches
// raises FacilityError kUnknownName. A height table is two names: the heights of its sample
// row (Start...) and the row's cells (TopRow...); a forces table adds its area cell.
enum class ReportBuilder {
  // Buildings of all heights, domes and arches: the pressures table Start/TopRow and the two
  // forces tables Start2/TopRow2/StartArea and Start3/TopRow3/StartArea2. Figure 6-6 only:
  // IncludeParapet, cleared without a parapet.
  TablesWithAreas,
  // The template as it is.
  Plain,
  // SystemLine1 and SystemLine2, the two cells of the system on page 1, which take
  // "Components" and "and Cladding" for components and cladding.
  PlainWithHeading,
  // As PlainWithHeading, and IncludeParapet, cleared without a parapet.
  LowRise,
  // ParapetPage, a cell of the parapet page, which goes without a parapet.
  Cladding,
  // SteepRoofRows, the rows of roofs steeper than 25 degrees, hidden up to 25.
  SimplifiedMwfrs,
  // CaseCRows, the rows of Case C, hidden while the aspect ratio B/s is under 2.
  SolidSigns,
  // Two pressures tables, Start/TopRow and Start1/TopRow1; AddTable, cleared up to 10
  // degrees; ParapetPage, which goes without parapets, the pages after it renumbered.
  Figure617,
  // Figure 6-21, templates Figure619x: the pressures table Start/TopRow, StartDiam for the
  // diameters, and the forces table Start2/TopRow2/StartArea.
  Figure621,
  // Figure 6-22, templates Figure621x: the pressures table and the forces table of Figure621.
  Figure622,
  // Figure 6-23, templates Figure622x: as Figure621, with RatioE for the ratios.
  Figure623,
  // The special case: as Figure621, with CfFactors for the force coefficients.
  SpecialCase,
};

// What a builder works on: the report book `ServerSS`, the project `WindData`, the prompt
// for its one message, the program's folder for the temporary file, and what the projected
// areas by height need.
struct BuildContext {
  wb::Workbook& report;
  wb::Workbook& project;
  Prompt& prompt;
  std::string applicationPath;
  const geometry::AreaContext& areas;
};

// Builds the report from the template by the builder's rules: clears the report, brings the
// template in with automatic calculation off, repeats the height rows and writes what the
// builder adds. Automatic calculation stays off for the refresh that follows. Returns false
// when the builder stopped before loading ("Halt pRowCount Error.").
bool RunBuilder(ReportBuilder builder, const wb::Workbook& templateBook,
                const BuildContext& context);

}  // namespace gustline::report
