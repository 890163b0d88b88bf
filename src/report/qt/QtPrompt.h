#pragma once

#include <QString>
#include <string_view>

#include "core/Prompt.h"

class QWidget;

namespace gustline {

// A filter of the file dialog in Qt's form: "Project Files (*.GLN)|*.GLN|All Files|*.*"
// becomes "Project Files (*.GLN *.gln);;All Files (*.*)". Patterns match in either case of
// letters, as they do on the system the files come from.
QString QtFileFilter(std::string_view filter);

// Message boxes and file dialogs of Qt, modal over the window given.
class QtPrompt : public Prompt {
 public:
  explicit QtPrompt(QWidget* parent = nullptr) : parent_(parent) {}
  void SetParent(QWidget* parent) { parent_ = parent; }

  PromptAnswer Show(const Message& message) override;
  std::optional<FileChoice> ChooseOpenFile(const FileRequest& request) override;
  std::optional<FileChoice> ChooseSaveFile(const FileRequest& request) override;

 private:
  std::optional<FileChoice> ChooseFile(const FileRequest& request, bool save);

  QWidget* parent_;
};

}  // namespace gustline
