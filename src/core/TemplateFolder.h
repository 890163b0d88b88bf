#pragma once

#include <string>

namespace gustline {

// Where `NORMAL.GLT` and the user's templates live: the program's folder when the program
// may write there, as it always did; otherwise the user's own data folder,
// $XDG_DATA_HOME/Gustline or ~/.local/share/Gustline, made when first needed.
std::string TemplateFolder(const std::string& programFolder);

}  // namespace gustline
