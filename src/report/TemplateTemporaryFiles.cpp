#include "report/TemplateTemporaryFiles.h"

#include "core/FileNames.h"
#include "core/workbook/model/Workbook.h"
#include "report/TemplateCatalog.h"

namespace gustline::report {

void WriteTemplateTemporaryFiles(std::string_view applicationPath) {
  for (const TemplateEntry& entry : AllTemplates()) {
    if (entry.book.empty() || entry.id.container == TemplateContainer::G) continue;
    const auto book = LoadTemplate(applicationPath, entry.id);
    book->WriteWorkbook(TemporaryBookPath(book->BookName()), wb::FileType::Native);
  }
}

}  // namespace gustline::report
