#include "SheetWords.h"

#include <cctype>

namespace gustline::books {
namespace {

void JoinRange(std::vector<std::string>& words, std::size_t at, std::size_t last) {
  for (std::size_t i = at + 1; i <= last; ++i) words[at] += " " + words[i];
  words.erase(words.begin() + static_cast<long>(at) + 1,
              words.begin() + static_cast<long>(last) + 1);
}

}  // namespace

void JoinQualifiedWord(std::vector<std::string>& words, std::size_t at) {
  for (std::size_t i = at; i < words.size(); ++i) {
    if (words[i].find('!') != std::string::npos) {
      JoinRange(words, at, i);
      return;
    }
    if (words[i].find('=') != std::string::npos) return;
  }
}

void JoinSheetWord(std::vector<std::string>& words, std::size_t at,
                   const std::function<bool(std::string_view)>& isSheet) {
  std::string candidate;
  std::size_t longest = at;
  for (std::size_t i = at; i < words.size(); ++i) {
    candidate += (i == at ? "" : " ") + words[i];
    if (isSheet(SheetNameText(candidate))) longest = i;
  }
  if (at < words.size()) JoinRange(words, at, longest);
}

std::string SheetNameText(std::string_view text) {
  if (text.size() < 2 || text.front() != '\'' || text.back() != '\'') return std::string(text);
  std::string name;
  for (std::size_t i = 1; i + 1 < text.size(); ++i) {
    name += text[i];
    if (text[i] == '\'' && text[i + 1] == '\'') ++i;
  }
  return name;
}

std::string QuotedSheetName(std::string_view sheet) {
  bool plain = !sheet.empty() && !std::isdigit(static_cast<unsigned char>(sheet.front()));
  for (char c : sheet)
    if (!std::isalnum(static_cast<unsigned char>(c)) && c != '_' && c != '.') plain = false;
  if (plain) return std::string(sheet);
  std::string quoted = "'";
  for (char c : sheet) {
    quoted += c;
    if (c == '\'') quoted += '\'';
  }
  return quoted + "'";
}

}  // namespace gustline::books
