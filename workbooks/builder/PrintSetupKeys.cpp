#include "PrintSetupKeys.h"

#include "core/workbook/address/CellAddress.h"

namespace gustline::books {
namespace {

// "0.5,0,0.75,0.5": exactly `count` numbers, none negative.
std::vector<double> ReadList(const std::string& key, const std::string& text, std::size_t count,
                             const SourceLocation& where) {
  std::vector<double> numbers;
  std::size_t start = 0;
  while (start <= text.size()) {
    auto comma = text.find(',', start);
    if (comma == std::string::npos) comma = text.size();
    const auto number = ReadNumber(std::string_view(text).substr(start, comma - start));
    if (!number || *number < 0) break;
    numbers.push_back(*number);
    start = comma + 1;
  }
  if (numbers.size() != count || start != text.size() + 1)
    throw SourceError(where, "'" + key + "' is " + std::to_string(count) +
                                 " numbers separated by commas, not '" + text + "'");
  return numbers;
}

SourceError NotAFlag(const SourceLocation& where, const std::string& key,
                     const std::string& value) {
  return SourceError(where, "'" + key + "' is 0 or 1, not '" + value + "'");
}

}  // namespace

void ApplyPrintKeys(const std::vector<std::string>& words, std::size_t first,
                    const SourceLocation& where, wb::PrintSetup& setup) {
  if (first >= words.size()) throw SourceError(where, "a page line needs at least one key");
  for (std::size_t i = first; i < words.size(); ++i) {
    const auto equals = words[i].find('=');
    const std::string key = words[i].substr(0, equals);
    const bool hasValue = equals != std::string::npos;
    const std::string value = hasValue ? Unquote(words[i].substr(equals + 1)) : std::string();
    const auto flag = [&](bool& field) {
      if (hasValue && value != "0" && value != "1") throw NotAFlag(where, key, value);
      field = !hasValue || value == "1";
    };
    const auto need = [&]() -> const std::string& {
      if (!hasValue) throw SourceError(where, "the page key '" + key + "' needs a value");
      return value;
    };
    if (key == "margins") {
      const auto margins = ReadList(key, need(), 4, where);
      setup.leftMargin = margins[0];
      setup.rightMargin = margins[1];
      setup.topMargin = margins[2];
      setup.bottomMargin = margins[3];
    } else if (key == "header") {
      setup.header = need();
    } else if (key == "footer") {
      setup.footer = need();
    } else if (key == "hcenter") {
      flag(setup.hCenter);
    } else if (key == "vcenter") {
      flag(setup.vCenter);
    } else if (key == "gridlines") {
      flag(setup.gridLines);
    } else if (key == "landscape") {
      flag(setup.landscape);
    } else if (key == "blackwhite") {
      flag(setup.noColor);
    } else if (key == "rowheadings") {
      flag(setup.rowHeading);
    } else if (key == "scale") {
      const auto scale = ReadNumber(need());
      if (!scale || *scale <= 0) throw SourceError(where, "'" + value + "' is not a scale");
      setup.scale = *scale;
      setup.fitToPages = false;
    } else if (key == "fit") {
      const auto pages = ReadList(key, need(), 2, where);
      if (pages[0] < 1 || pages[1] < 1 || pages[0] != static_cast<int>(pages[0]) ||
          pages[1] != static_cast<int>(pages[1]))
        throw SourceError(where, "'fit' is whole pages wide and tall, not '" + value + "'");
      setup.fitToPages = true;
      setup.pagesWide = static_cast<int>(pages[0]);
      setup.pagesTall = static_cast<int>(pages[1]);
    } else if (key == "area") {
      const auto area = wb::ParseAreaText(need());
      if (!area) throw SourceError(where, "'" + value + "' is not a print area");
      setup.printArea = wb::AreaText(*area, true);
    } else {
      throw SourceError(where, "unknown page key '" + key + "'");
    }
  }
}

}  // namespace gustline::books
