#pragma once

#include <string>
#include <utility>

#include "core/Prompt.h"

namespace gustline {

// The file dialogs of the project commands, with their titles and filters. Save As offers
// an empty name, and the dialog asks before it overwrites a file.
inline FileRequest ProjectFileRequest(std::string title, std::string filter) {
  FileRequest request;
  request.title = std::move(title);
  request.filter = std::move(filter);
  return request;
}

inline FileRequest OpenProjectRequest() {
  return ProjectFileRequest("Open Project", "Gustline Files (*.GLN)|*.GLN|Template (*.GLT)|*.GLT");
}

inline FileRequest SaveAsRequest() {
  return ProjectFileRequest(
      "Save As",
      "Gustline File (*.GLN)|*.GLN|Report As Text Tab Delimited (*.TXT)|*.TXT|"
      "Report As Microsoft Excel 5.0 (*.XLS)|*.XLS|Template (*.GLT)|*.GLT|PDF (*.PDF)|*.PDF");
}

// Printing without a printer: the report as a PDF file instead.
inline FileRequest PrintToPdfRequest() {
  FileRequest request = ProjectFileRequest("Print to PDF", "PDF (*.PDF)|*.PDF");
  request.defaultExtension = "PDF";
  return request;
}

inline FileRequest ActiveTemplateRequest() {
  return ProjectFileRequest("Active Template", "Template (*.GLT)|*.GLT");
}

}  // namespace gustline
