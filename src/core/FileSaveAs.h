#pragma once

#include <string>

#include "core/workbook/model/Workbook.h"

namespace gustline {

struct Application;

// The report as one stack of its pages, in results, on the first sheet of `BufferSS`,
// written as tab-delimited text or an Excel 5.0 workbook. The buffer is emptied first, so
// that nothing of an earlier export remains. Facility errors propagate.
void ExportReport(Application& app, const std::string& path, wb::FileType type);

// The command Save As: the name chosen decides by its extension what is written, the
// project, the report as text, Excel 5.0 or PDF, or the project as a template. Only a project
// saved as such takes the new name. The modified flag is cleared afterwards, after an
// export too, and after a name whose extension writes nothing. A cancelled dialog or a
// failed write ends the command without a message, the flag as it was; the result is
// then false.
bool FileSaveAs(Application& app);

}  // namespace gustline
