#pragma once

#include <optional>
#include <string>
#include <vector>

namespace gustline {

enum class PromptIcon { None, Stop, Question, Exclamation, Information };
enum class PromptButtons { Ok, OkCancel, YesNo, YesNoCancel, RetryCancel };
enum class PromptAnswer { Ok, Cancel, Yes, No, Retry };

// A modal message box: its title, text, icon and buttons, exactly as the user sees them.
struct Message {
  std::string title;
  std::string text;
  PromptIcon icon = PromptIcon::None;
  PromptButtons buttons = PromptButtons::Ok;
  bool operator==(const Message&) const = default;
};

// A file dialog: title, filter ("Project Files (*.GLN)|*.GLN|All Files (*.*)|*.*"),
// the filter shown first (1-based), the name offered and the extension added by default.
struct FileRequest {
  std::string title;
  std::string filter;
  int filterIndex = 1;
  std::string fileName;
  std::string defaultExtension;
};

// A chosen file and the filter it was chosen under.
struct FileChoice {
  std::string path;
  int filterIndex = 1;
};

// How the core talks to the user: message boxes and file choice. The GUI shows real
// dialogs, the command line prints, and tests script the answers and read the messages.
class Prompt {
 public:
  virtual ~Prompt() = default;
  virtual PromptAnswer Show(const Message& message) = 0;
  // nullopt when the user cancels.
  virtual std::optional<FileChoice> ChooseOpenFile(const FileRequest& request) = 0;
  virtual std::optional<FileChoice> ChooseSaveFile(const FileRequest& request) = 0;
};

// Prints every message to standard error as "[Title] text" and answers with the first
// button of the box; file dialogs are cancelled.
class StderrPrompt : public Prompt {
 public:
  PromptAnswer Show(const Message& message) override;
  std::optional<FileChoice> ChooseOpenFile(const FileRequest& request) override;
  std::optional<FileChoice> ChooseSaveFile(const FileRequest& request) override;
};

// Records every message and file request, and answers from queues the test fills; with an
// empty queue it answers with the first button, and cancels file dialogs.
class ScriptedPrompt : public Prompt {
 public:
  PromptAnswer Show(const Message& message) override;
  std::optional<FileChoice> ChooseOpenFile(const FileRequest& request) override;
  std::optional<FileChoice> ChooseSaveFile(const FileRequest& request) override;

  std::vector<Message> messages;
  std::vector<FileRequest> fileRequests;
  std::vector<PromptAnswer> answers;                   // taken from the front
  std::vector<std::optional<FileChoice>> fileChoices;  // taken from the front
};

// The first button of a box: what a box answers when nobody chooses.
PromptAnswer FirstButton(PromptButtons buttons);

}  // namespace gustline
