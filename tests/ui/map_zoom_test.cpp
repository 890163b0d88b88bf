#include <gtest/gtest.h>

#include <optional>

#include "ui/MapZoom.h"

namespace gustline {
namespace {

constexpr MapSize kNatural{1000, 700};
constexpr MapSize kFrame{800, 500};

TEST(MapZoomTest, StepsAndTheLowerBoundOfTheFrame) {
  enum Step { In, Out };
  struct Case {
    MapSize from;
    Step step;
    MapSize to;
    bool zoomOut;
  };
  const Case cases[] = {
      {{1000, 700}, In, {1200, 840}, true},
      {{1000, 700}, Out, {800, 560}, true},  // exactly at the frame's width is allowed
      {{900, 700}, Out, {900, 560}, false},  // the width would cross the frame: it stays
      {{1000, 600}, Out, {800, 600}, false},
      {{800, 500}, Out, {800, 500}, false},
      {{800, 500}, In, {960, 600}, true},
  };
  for (const Case& c : cases) {
    const MapZoom zoom = c.step == In ? ZoomIn({c.from, false}) : ZoomOut({c.from, true}, kFrame);
    EXPECT_EQ(zoom.picture, c.to) << c.from.width << ' ' << c.step;
    EXPECT_EQ(zoom.zoomOutEnabled, c.zoomOut) << c.from.width << ' ' << c.step;
  }
}

TEST(MapZoomTest, InThenOutIsNotWhereItStarted) {
  const MapZoom back = ZoomOut(ZoomIn({kNatural, true}), kFrame);
  EXPECT_DOUBLE_EQ(back.picture.width, 960);  // 1.2 times 0.8 is 0.96
  EXPECT_NE(back.picture, kNatural);
}

TEST(MapZoomTest, ATypedOrChosenFactorOfTheStoredSize) {
  struct Case {
    const char* text;
    std::optional<double> factor;
    const char* shown;
  };
  const Case cases[] = {
      {"80", 0.8, "80%"},  {"80%", 0.8, "80%"},           {" 125% ", 1.25, "125%"},
      {"10%", 0.1, "10%"}, {"abc", std::nullopt, "abc%"}, {"", std::nullopt, "%"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(ZoomFactor(c.text), c.factor) << c.text;
    EXPECT_EQ(ZoomText(c.text), c.shown) << c.text;
  }
  struct Target {
    double factor;
    MapSize to;
    bool zoomOut;
  };
  const Target targets[] = {
      {2.0, {2000, 1400}, true},
      {0.8, {800, 560}, true},
      {0.75, {1200, 525}, false},  // below the frame's width: the width stays as it was
      {0.1, {1200, 840}, false},   // the frame stays filled
  };
  for (const Target& t : targets) {
    const MapZoom zoom = ZoomTo({{1200, 840}, false}, kNatural, t.factor, kFrame);
    EXPECT_EQ(zoom.picture, t.to) << t.factor;
    EXPECT_EQ(zoom.zoomOutEnabled, t.zoomOut) << t.factor;
  }
}

}  // namespace
}  // namespace gustline
