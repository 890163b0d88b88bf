#include "core/Prompt.h"

#include <iostream>

namespace gustline {

PromptAnswer FirstButton(PromptButtons buttons) {
  switch (buttons) {
    case PromptButtons::Ok:
    case PromptButtons::OkCancel:
      return PromptAnswer::Ok;
    case PromptButtons::YesNo:
    case PromptButtons::YesNoCancel:
      return PromptAnswer::Yes;
    case PromptButtons::RetryCancel:
      return PromptAnswer::Retry;
  }
  return PromptAnswer::Ok;
}

PromptAnswer StderrPrompt::Show(const Message& message) {
  std::cerr << '[' << message.title << "] " << message.text << '\n';
  return FirstButton(message.buttons);
}

std::optional<FileChoice> StderrPrompt::ChooseOpenFile(const FileRequest& /*request*/) {
  return std::nullopt;
}

std::optional<FileChoice> StderrPrompt::ChooseSaveFile(const FileRequest& /*request*/) {
  return std::nullopt;
}

PromptAnswer ScriptedPrompt::Show(const Message& message) {
  messages.push_back(message);
  if (answers.empty()) return FirstButton(message.buttons);
  PromptAnswer answer = answers.front();
  answers.erase(answers.begin());
  return answer;
}

std::optional<FileChoice> ScriptedPrompt::ChooseOpenFile(const FileRequest& request) {
  fileRequests.push_back(request);
  if (fileChoices.empty()) return std::nullopt;
  auto choice = fileChoices.front();
  fileChoices.erase(fileChoices.begin());
  return choice;
}

std::optional<FileChoice> ScriptedPrompt::ChooseSaveFile(const FileRequest& request) {
  return ChooseOpenFile(request);
}

}  // namespace gustline
