#include "report/qt/QtPrompt.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QStringList>

namespace gustline {
namespace {

QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// "*.GLN" matches "*.GLN" and "*.gln"; "*.*" stays as it is.
QString BothCases(const QString& patterns) {
  QStringList result;
  for (const QString& pattern : patterns.split(';', Qt::SkipEmptyParts)) {
    const QString trimmed = pattern.trimmed();
    result << trimmed;
    for (const QString& variant : {trimmed.toUpper(), trimmed.toLower()})
      if (!result.contains(variant)) result << variant;
  }
  return result.join(' ');
}

QMessageBox::Icon BoxIcon(PromptIcon icon) {
  switch (icon) {
    case PromptIcon::Stop:
      return QMessageBox::Critical;
    case PromptIcon::Question:
      return QMessageBox::Question;
    case PromptIcon::Exclamation:
      return QMessageBox::Warning;
    case PromptIcon::Information:
      return QMessageBox::Information;
    case PromptIcon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons BoxButtons(PromptButtons buttons) {
  switch (buttons) {
    case PromptButtons::Ok:
      return QMessageBox::Ok;
    case PromptButtons::OkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case PromptButtons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case PromptButtons::YesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case PromptButtons::RetryCancel:
      return QMessageBox::Retry | QMessageBox::Cancel;
  }
  return QMessageBox::Ok;
}

PromptAnswer Answer(int button, PromptButtons buttons) {
  switch (button) {
    case QMessageBox::Ok:
      return PromptAnswer::Ok;
    case QMessageBox::Yes:
      return PromptAnswer::Yes;
    case QMessageBox::No:
      return PromptAnswer::No;
    case QMessageBox::Retry:
      return PromptAnswer::Retry;
    case QMessageBox::Cancel:
      return PromptAnswer::Cancel;
    default:
      // Closed by the frame: the escape answer of the box.
      return buttons == PromptButtons::Ok      ? PromptAnswer::Ok
             : buttons == PromptButtons::YesNo ? PromptAnswer::No
                                               : PromptAnswer::Cancel;
  }
}

}  // namespace

QString QtFileFilter(std::string_view filter) {
  const QStringList parts = ToQString(filter).split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString description = parts[i].trimmed();
    const qsizetype bracket = description.indexOf('(');
    if (bracket > 0) description = description.left(bracket).trimmed();
    filters << description + QStringLiteral(" (") + BothCases(parts[i + 1]) + ')';
  }
  return filters.join(QStringLiteral(";;"));
}

PromptAnswer QtPrompt::Show(const Message& message) {
  QMessageBox box(BoxIcon(message.icon), ToQString(message.title),
                  ToQString(message.text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")),
                  BoxButtons(message.buttons), parent_);
  return Answer(box.exec(), message.buttons);
}

std::optional<FileChoice> QtPrompt::ChooseOpenFile(const FileRequest& request) {
  return ChooseFile(request, false);
}

std::optional<FileChoice> QtPrompt::ChooseSaveFile(const FileRequest& request) {
  return ChooseFile(request, true);
}

std::optional<FileChoice> QtPrompt::ChooseFile(const FileRequest& request, bool save) {
  QFileDialog dialog(parent_, ToQString(request.title));
  const QStringList filters = QtFileFilter(request.filter).split(QStringLiteral(";;"));
  dialog.setNameFilters(filters);
  const qsizetype shown = request.filterIndex - 1;
  if (shown >= 0 && shown < filters.size()) dialog.selectNameFilter(filters[shown]);
  dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  if (!request.defaultExtension.empty())
    dialog.setDefaultSuffix(ToQString(request.defaultExtension).remove(QLatin1Char('.')));
  if (!request.fileName.empty()) dialog.selectFile(ToQString(request.fileName));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  const int filterIndex = static_cast<int>(filters.indexOf(dialog.selectedNameFilter())) + 1;
  return FileChoice{dialog.selectedFiles().front().toStdString(),
                    filterIndex > 0 ? filterIndex : 1};
}

}  // namespace gustline
