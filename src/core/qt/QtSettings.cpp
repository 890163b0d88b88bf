#include "core/qt/QtSettings.h"

#include <QSettings>
#include <QString>

namespace gustline {
namespace {

QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString KeyPath(std::string_view key) {
  return ToQString(kSettingsSection) + '/' + ToQString(key);
}

}  // namespace

QtSettings::QtSettings()
    : store_(std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope,
                                         ToQString(kSettingsApplication))) {}

QtSettings::~QtSettings() = default;

std::string QtSettings::GetSetting(std::string_view key, std::string_view defaultValue) {
  const QVariant value = store_->value(KeyPath(key));
  if (!value.isValid()) return std::string(defaultValue);
  return value.toString().toStdString();
}

void QtSettings::SaveSetting(std::string_view key, std::string_view value) {
  store_->setValue(KeyPath(key), ToQString(value));
  store_->sync();
}

}  // namespace gustline
