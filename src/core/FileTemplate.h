#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gustline {

struct Application;

// What the Template dialog shows of the active template: its name without folder and
// extension, "NORMAL" for the default.
std::string ActiveTemplateFieldText(const Application& app);

// The Browse button: the template dialog; the chosen path, or nullopt when cancelled.
std::optional<std::string> BrowseTemplate(Application& app);

// OK of the Template dialog: an empty text means "Normal", a name without an extension gets
// ".GLT", and a name without a folder is looked for beside the program, in any case of
// letters. An existing file becomes the active template, which the next File New and the
// next start read; the open project stays. Otherwise "This template does not exist." and
// false, the active template as it was.
bool AcceptTemplateName(Application& app, std::string_view text);

}  // namespace gustline
