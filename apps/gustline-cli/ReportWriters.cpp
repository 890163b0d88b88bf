#include "ReportWriters.h"

#include <map>

namespace gustline::cli {
namespace {

struct Writer {
  std::string usage;
  ReportWriterFn write;
};

std::map<std::string, Writer, std::less<>>& Writers() {
  static std::map<std::string, Writer, std::less<>> writers;
  return writers;
}

}  // namespace

bool RegisterReportWriter(std::string_view option, std::string_view usage, ReportWriterFn write) {
  Writers().emplace(std::string(option), Writer{std::string(usage), write});
  return true;
}

ReportWriterFn FindReportWriter(std::string_view option) {
  const auto found = Writers().find(option);
  return found == Writers().end() ? nullptr : found->second.write;
}

std::vector<std::string> ReportWriterUsages() {
  std::vector<std::string> usages;
  for (const auto& [option, writer] : Writers()) usages.push_back(writer.usage);
  return usages;
}

}  // namespace gustline::cli
