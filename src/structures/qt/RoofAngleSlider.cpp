#include "structures/qt/RoofAngleSlider.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>

#include "core/workbook/value/NumberFormat.h"
#include "structures/FreeRoof.h"

namespace gustline {

void FollowRoofAngle(QLineEdit& box, QSlider& slider) {
  QObject::connect(&slider, &QSlider::valueChanged, &box, [&box](int position) {
    box.setText(QString::fromStdString(wb::FormatNumber(position, kFreeRoofAngleFormat)));
  });
  QObject::connect(&box, &QLineEdit::textChanged, &slider, [&slider](const QString& text) {
    const QSignalBlocker keepBoxText(slider);
    slider.setValue(RoofAngleSliderPosition(text.toStdString()));
  });
}

}  // namespace gustline
