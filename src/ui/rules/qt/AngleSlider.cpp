#include "ui/rules/qt/AngleSlider.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>
#include <algorithm>

#include "core/workbook/value/NumberFormat.h"
#include "ui/rules/FieldNumber.h"

namespace gustline::rules {

void FollowAngle(QLineEdit& box, QSlider& slider) {
  QObject::connect(&slider, &QSlider::valueChanged, &box, [&box](int position) {
    box.setText(QString::fromStdString(wb::FormatNumber(position, "0.00")));
  });
  QObject::connect(&box, &QLineEdit::textChanged, &slider, [&slider](const QString& text) {
    const double angle =
        std::clamp(FieldValue(text.toStdString()), static_cast<double>(slider.minimum()),
                   static_cast<double>(slider.maximum()));
    const QSignalBlocker keepBoxText(slider);
    slider.setValue(static_cast<int>(angle));
  });
}

}  // namespace gustline::rules
