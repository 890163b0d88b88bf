#include "core/FileTemplate.h"

#include <filesystem>
#include <system_error>

#include "core/Application.h"
#include "core/FileNames.h"
#include "core/ProcessState.h"
#include "core/ProjectFilesDialogs.h"
#include "core/ProjectFilesExtensions.h"
#include "core/Prompt.h"
#include "core/TextTools.h"
#include "core/workbook/value/TextCompare.h"

namespace gustline {
namespace {

// The file of that name in the folder, matched without regard to case as the file
// dialogs of the program's first platform did; the name as given when none matches.
std::string FindInFolder(const std::string& folder, const std::string& name) {
  std::string exact = JoinPath(folder, name);
  if (HasFile(exact)) return exact;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
    const std::string candidate = entry.path().filename().string();
    if (wb::EqualNoCase(candidate, name)) return entry.path().string();
  }
  return exact;
}

}  // namespace

std::string ActiveTemplateFieldText(const Application& app) {
  return BaseOf(LastPathPart(app.state.activeTemplatePath));
}

std::optional<std::string> BrowseTemplate(Application& app) {
  const auto choice = app.prompt.ChooseOpenFile(ActiveTemplateRequest());
  if (!choice) return std::nullopt;
  return choice->path;
}

bool AcceptTemplateName(Application& app, std::string_view text) {
  std::string name(TrimBlanks(text));
  if (name.empty()) name = "Normal";
  if (ExtensionOf(name).empty()) name += ".GLT";
  const std::string path =
      LastPathPart(name) == name ? FindInFolder(app.state.applicationPath, name) : name;
  if (!HasFile(path)) {
    app.prompt.Show(Message{"Gustline", "This template does not exist.", PromptIcon::Information,
                            PromptButtons::Ok});
    return false;
  }
  app.state.activeTemplatePath = path;
  return true;
}

}  // namespace gustline
