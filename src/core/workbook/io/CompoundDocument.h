#pragma once

#include <ostream>
#include <string>
#include <string_view>

namespace gustline::wb {

// Writes an OLE2 compound document (version 3, 512-byte sectors) whose root storage holds
// one stream, as an Excel 5.0 file holds its "Book" stream. A stream shorter than the
// mini-stream cutoff of 4096 bytes is padded with zeros up to it, so that every stream
// stands in regular sectors and the file needs no mini stream. Raises
// FacilityError(errc::kFileWrite) for a stream beyond what 109 allocation sectors map.
void WriteCompoundDocument(std::ostream& out, std::string_view streamName, std::string stream);

}  // namespace gustline::wb
