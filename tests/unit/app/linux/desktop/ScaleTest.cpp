#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "app/desktop/Scale.h"

namespace launcher {
namespace {

struct Case {
  std::optional<std::int32_t> dpi;  // in 1024ths
  std::string resources;
  double scale;
};

void check(const std::vector<Case>& cases) {
  for (const auto& [dpi, resources, scale] : cases) {
    SCOPED_TRACE((dpi ? std::to_string(*dpi) : "no number") + ", '" + resources + "'");
    XSettings settings;
    if (dpi) settings.numbers["Xft/DPI"] = *dpi;
    EXPECT_EQ(desktopScale(settings, resources), scale);
  }
}

TEST(Scale, AnOrdinaryScreen) {
  check({
      {{}, "", 1},
      {96 * 1024, "", 1},
      {{}, "Xft.dpi:\t96\n", 1},
  });
}

TEST(Scale, ADenseScreen) {
  check({
      {192 * 1024, "", 2},
      {{}, "Xft.dpi:\t192\n", 2},
      {{}, "Xft.dpi: 191.9", 2},
      {{}, "Xcursor.size:\t24\nXft.dpi:\t288\nXft.hinting:\t1\n", 3},
  });
}

TEST(Scale, TheSettingsComeFirst) { check({{96 * 1024, "Xft.dpi:\t192\n", 1}}); }

TEST(Scale, InWholeSteps) {
  check({
      {143 * 1024, "", 1},
      {144 * 1024, "", 2},
      {239 * 1024, "", 2},
  });
}

TEST(Scale, WithinReason) {
  check({
      {72 * 1024, "", 1},
      {10'000 * 1024, "", 4},
      {{}, "Xft.dpi:\t1e300\n", 4},
  });
}

TEST(Scale, WhatIsNoNumberIsNotTold) {
  check({
      {-1, "", 1},
      {0, "Xft.dpi:\t192\n", 2},
      {{}, "Xft.dpi:", 1},
      {{}, "Xft.dpi:\tmany\n", 1},
      {{}, "Xft.dpi:\t-192\n", 1},
      {{}, "Xft.dpi:\tnan\n", 1},
      {{}, "myXft.dpi:\t192\n", 1},
  });
}

}  // namespace
}  // namespace launcher
