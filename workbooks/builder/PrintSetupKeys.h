#pragma once

#include <string>
#include <vector>

#include "SourceText.h"
#include "core/workbook/model/SheetSetup.h"

namespace gustline::books {

// Sets the print setup from the keys of a 'page' line, words[first] on:
// margins=LEFT,RIGHT,TOP,BOTTOM (inches), header="...", footer="...", hcenter, vcenter,
// gridlines, landscape, blackwhite, rowheadings (each also =0 or =1), scale=N (percent,
// which ends fitting to pages), fit=WIDE,TALL, area=RANGE. Keys not given stay as they are.
void ApplyPrintKeys(const std::vector<std::string>& words, std::size_t first,
                    const SourceLocation& where, wb::PrintSetup& setup);

}  // namespace gustline::books
