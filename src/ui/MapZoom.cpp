#include "ui/MapZoom.h"

#include "core/TextTools.h"
#include "ui/rules/FieldNumber.h"

namespace gustline {
namespace {

constexpr double kZoomInStep = 1.2;
constexpr double kZoomOutStep = 0.8;

std::string_view WithoutPercent(std::string_view text) {
  text = TrimBlanks(text);
  if (!text.empty() && text.back() == '%') text.remove_suffix(1);
  return text;
}

}  // namespace

MapZoom ZoomIn(const MapZoom& zoom) {
  return {{zoom.picture.width * kZoomInStep, zoom.picture.height * kZoomInStep}, true};
}

MapZoom ZoomOut(const MapZoom& zoom, MapSize frame) {
  MapZoom out = zoom;
  const auto side = [&out](double& size, double frameSize) {
    if (size * kZoomOutStep < frameSize) {
      out.zoomOutEnabled = false;
    } else {
      size *= kZoomOutStep;
    }
  };
  side(out.picture.width, frame.width);
  side(out.picture.height, frame.height);
  return out;
}

MapZoom ZoomTo(const MapZoom& zoom, MapSize natural, double factor, MapSize frame) {
  MapZoom out{zoom.picture, true};
  const auto side = [&out](double& size, double target, double frameSize) {
    if (target < frameSize) {
      out.zoomOutEnabled = false;
    } else {
      size = target;
    }
  };
  side(out.picture.width, natural.width * factor, frame.width);
  side(out.picture.height, natural.height * factor, frame.height);
  return out;
}

std::optional<double> ZoomFactor(std::string_view text) {
  const auto number = rules::FieldNumber(WithoutPercent(text));
  if (!number) return std::nullopt;
  return *number / 100.0;
}

std::string ZoomText(std::string_view text) {
  return std::string(WithoutPercent(text)) + "%";
}

}  // namespace gustline
