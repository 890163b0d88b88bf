#pragma once

#include <string>
#include <string_view>

namespace gustline {

// A path in a folder, joined with the platform's separator.
std::string JoinPath(std::string_view folder, std::string_view name);
// True when the path names a file.
bool HasFile(const std::string& path);
// Removes the file if there is one; a file that will not go is left without complaint.
void DeleteIfPresent(const std::string& path);
// Everything after the last path separator.
std::string LastPathPart(std::string_view path);
// The temporary file through which a template reaches the report: the book's trimmed
// name and "01.vts" in the process's own temporary folder.
std::string TemporaryBookPath(std::string_view bookName);

}  // namespace gustline
