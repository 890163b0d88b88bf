// gustline-cli batch: one report a row of a CSV file of project inputs, and the named results
// of each, as CSV or as JSON lines.
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "CliCommand.h"
#include "CsvRows.h"
#include "NoReportReason.h"
#include "ProjectOptions.h"
#include "core/Prompt.h"
#include "core/workbook/io/AtomicFile.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "core/workbook/value/Value.h"
#include "report/HeadlessReport.h"
#include "report/ReportJson.h"

namespace gustline::cli {
namespace {

constexpr const char* kUsage =
    "batch [--project FILE] [--set NAME=VALUE]... [--outline FILE] [--unchecked] --in CSV "
    "--out FILE [--jsonl] --result NAME...   one report a row of CSV (a header of input names), "
    "its results as CSV or JSON lines ('-': standard output)";

struct BatchOptions {
  ProjectOptions project;
  std::string inPath;
  std::string outPath;
  bool jsonLines = false;
  std::vector<std::string> results;
};

std::optional<BatchOptions> ParseBatchOptions(const std::vector<std::string>& args) {
  auto project = ParseProjectOptions(args);
  if (!project) return std::nullopt;
  BatchOptions options;
  const std::vector<std::string>& rest = project->rest;
  for (std::size_t i = 0; i < rest.size(); ++i) {
    const std::string& arg = rest[i];
    if (arg == "--jsonl") {
      options.jsonLines = true;
    } else if ((arg == "--in" || arg == "--out") && i + 1 < rest.size()) {
      (arg == "--in" ? options.inPath : options.outPath) = rest[++i];
    } else if (arg == "--result") {
      // Every word up to the next option is a result name.
      while (i + 1 < rest.size() && rest[i + 1].rfind("--", 0) != 0)
        options.results.push_back(rest[++i]);
    } else {
      std::cerr << "gustline-cli batch: unknown or incomplete option " << arg << '\n';
      return std::nullopt;
    }
  }
  if (options.inPath.empty() || options.outPath.empty() || options.results.empty()) {
    std::cerr << "gustline-cli batch: --in, --out and --result are needed\nusage: " << kUsage
              << '\n';
    return std::nullopt;
  }
  project->rest.clear();
  options.project = std::move(*project);
  return options;
}

// The value of the first cell of a name or cell text of the book, its active sheet kept;
// nullopt when the book has no such name.
std::optional<wb::Value> NamedValue(wb::Workbook& book, const std::string& name) {
  const auto place = book.ResolveReference(name);
  if (!place) return std::nullopt;
  const int active = book.ActiveSheet();
  book.SetActiveSheet(place->first);
  wb::Value value = book.CellValue(place->second.firstRow, place->second.firstCol);
  book.SetActiveSheet(active);
  return value;
}

// What one row gave: the template built (empty when none), each result and the messages.
struct CaseOutcome {
  std::string templateName;
  std::vector<std::optional<wb::Value>> results;
  std::vector<std::string> messages;
};

// Every case starts from the project as read, so that one case's inputs and the cells its
// report wrote never reach the next.
CaseOutcome RunCase(report::HeadlessReport& program, const wb::Workbook& projectAsRead,
                    ScriptedPrompt& prompt, const BatchOptions& options,
                    const std::vector<std::string>& header, const std::vector<std::string>& row) {
  CaseOutcome outcome;
  std::vector<std::string> missing;
  prompt.messages.clear();
  program.Project().CopyContentOf(projectAsRead);
  ProjectOptions inputs = options.project;
  for (std::size_t i = 0; i < header.size(); ++i)
    inputs.sets.emplace_back(header[i], i < row.size() ? row[i] : std::string());
  if (ApplySets(program.Project(), inputs, prompt)) {
    outcome.templateName = program.CreateReport();
    if (outcome.templateName.empty())
      missing.push_back("no report: " + NoReportReason(program.Project()));
    for (const std::string& name : options.results) {
      auto value = outcome.templateName.empty() ? std::nullopt : NamedValue(program.Report(), name);
      if (!value) value = NamedValue(program.Project(), name);
      if (!value && !outcome.templateName.empty())
        missing.push_back("no result " + name + " in the report or the project");
      outcome.results.push_back(std::move(value));
    }
  } else {
    outcome.results.resize(options.results.size());
  }
  for (const Message& message : prompt.messages)
    outcome.messages.push_back("[" + message.title + "] " + message.text);
  outcome.messages.insert(outcome.messages.end(), missing.begin(), missing.end());
  return outcome;
}

std::string Joined(const std::vector<std::string>& texts) {
  std::string joined;
  for (const std::string& text : texts) joined += (joined.empty() ? "" : " | ") + text;
  return joined;
}

std::string CsvOutcome(const std::vector<std::string>& row, std::size_t inputs,
                       const CaseOutcome& outcome) {
  std::vector<std::string> fields(row.begin(), row.end());
  fields.resize(inputs);
  fields.push_back(outcome.templateName);
  for (const auto& value : outcome.results) fields.push_back(value ? wb::PlainText(*value) : "");
  fields.push_back(Joined(outcome.messages));
  return CsvLine(fields);
}

std::string JsonOutcome(const std::vector<std::string>& header, const std::vector<std::string>& row,
                        const BatchOptions& options, const CaseOutcome& outcome) {
  std::string json = "{\"inputs\": {";
  for (std::size_t i = 0; i < header.size(); ++i) {
    json += (i ? ", " : "") + report::JsonString(header[i]) + ": " +
            report::JsonString(i < row.size() ? row[i] : std::string());
  }
  json += "}, \"template\": " + report::JsonString(outcome.templateName) + ", \"results\": {";
  for (std::size_t i = 0; i < options.results.size(); ++i) {
    const auto& value = outcome.results[i];
    json += (i ? ", " : "") + report::JsonString(options.results[i]) + ": " +
            (value ? report::JsonValue(*value) : "null");
  }
  json += "}, \"messages\": [";
  for (std::size_t i = 0; i < outcome.messages.size(); ++i)
    json += (i ? ", " : "") + report::JsonString(outcome.messages[i]);
  return json + "]}\n";
}

int RunBatch(const std::vector<std::string>& args) {
  const auto options = ParseBatchOptions(args);
  if (!options) return kExitUsage;
  std::ifstream in(options->inPath, std::ios::binary);
  const auto rows = in ? ReadCsvRows(in) : std::nullopt;
  if (!rows || rows->empty()) {
    std::cerr << "gustline-cli batch: cannot read " << options->inPath
              << (in ? ": a quoted field is not closed, or there is no header" : "") << '\n';
    return kExitUsage;
  }
  const std::vector<std::string>& header = rows->front();
  std::string text;
  if (!options->jsonLines) {
    std::vector<std::string> titles = header;
    titles.emplace_back("Template");
    titles.insert(titles.end(), options->results.begin(), options->results.end());
    titles.emplace_back("Messages");
    text += CsvLine(titles);
  }

  ScriptedPrompt prompt;
  report::HeadlessReport program(ProgramFolder(), prompt);
  wb::Workbook projectAsRead("Batch project as read");
  try {
    program.ReadProject(options->project.projectPath);
    projectAsRead.CopyContentOf(program.Project());
  } catch (const wb::FacilityError& error) {
    std::cerr << "gustline-cli batch: " << error.what() << '\n';
    return kExitUsage;
  }
  int status = kExitOk;
  for (std::size_t r = 1; r < rows->size(); ++r) {
    const std::vector<std::string>& row = (*rows)[r];
    CaseOutcome outcome;
    try {
      outcome = RunCase(program, projectAsRead, prompt, *options, header, row);
    } catch (const wb::FacilityError& error) {
      outcome.results.resize(options->results.size());
      outcome.messages.emplace_back(error.what());
    }
    if (outcome.templateName.empty()) status = kExitFailed;
    text += options->jsonLines ? JsonOutcome(header, row, *options, outcome)
                               : CsvOutcome(row, header.size(), outcome);
  }
  try {
    wb::AtomicFile out(options->outPath);
    out.Stream() << text;
    out.Commit();
  } catch (const wb::FacilityError& error) {
    std::cerr << "gustline-cli batch: " << error.what() << '\n';
    return kExitUsage;
  }
  return status;
}

const bool registered = RegisterCommand("batch", kUsage, RunBatch);

}  // namespace
}  // namespace gustline::cli
