#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gustline {

// The zoom of the wind speed map viewer. The picture is stretched to a size of its own inside
// a frame that scrolls it; zooming out never shrinks a side below the frame's, so the frame
// stays filled, and a side that would go below it stays as it is and greys Zoom out.
struct MapSize {
  double width = 0;
  double height = 0;
  bool operator==(const MapSize&) const = default;
};

struct MapZoom {
  MapSize picture;
  bool zoomOutEnabled = true;
};

// The fixed items of the zoom box, which can also be typed into.
inline constexpr std::string_view kMapZoomItems[] = {"200%", "175%", "150%", "125%", "100%",
                                                     "75%",  "50%",  "25%",  "10%"};

// Zoom in: each side times 1.2, and Zoom out enabled.
MapZoom ZoomIn(const MapZoom& zoom);

// Zoom out: each side times 0.8, unless that is below the frame's side.
MapZoom ZoomOut(const MapZoom& zoom, MapSize frame);

// A factor of the stored 100 per cent size, from the zoom box, under the same lower bound;
// Zoom out is enabled when both sides lie above it.
MapZoom ZoomTo(const MapZoom& zoom, MapSize natural, double factor, MapSize frame);

// The factor of a zoom box text: the number, with or without "%", over 100; nullopt for a
// text that holds no number.
std::optional<double> ZoomFactor(std::string_view text);

// What the box shows after Enter: the number typed, with "%".
std::string ZoomText(std::string_view text);

}  // namespace gustline
