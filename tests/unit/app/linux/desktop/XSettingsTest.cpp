#include <gtest/gtest.h>

#include <string>

#include "app/desktop/XSettings.h"

namespace launcher {
namespace {

using namespace std::string_literals;

const std::string head = "\0\0\0\0\x07\0\0\0"s;
const std::string dpi = "\0\0\x07\0Xft/DPI\0\0\0\0\0\0\0\x03\0"s;  // 192 * 1024
const std::string font = "\x01\0\x0c\0Gtk/FontName\x05\0\0\0\x0c\0\0\0Cantarell 11"s;
const std::string colour = "\x02\0\x03\0Red\0\0\0\0\0\xff\xff\0\0\0\0\xff\xff"s;

std::string with(std::uint8_t count, const std::string& settings) {
  return head + static_cast<char>(count) + "\0\0\0"s + settings;
}

TEST(XSettings, NumbersAndTexts) {
  const auto read = parseXSettings(with(3, dpi + colour + font));
  EXPECT_EQ(read.numbers, (std::map<std::string, std::int32_t>{{"Xft/DPI", 196608}}));
  EXPECT_EQ(read.texts, (std::map<std::string, std::string>{{"Gtk/FontName", "Cantarell 11"}}));
}

TEST(XSettings, InTheOtherOrderOfBytes) {
  const auto read = parseXSettings(
      "\x01\0\0\0\0\0\0\x07\0\0\0\x02"
      "\0\0\0\x07Xft/DPI\0\0\0\0\0\0\x03\0\0"
      "\x01\0\0\x01N\0\0\0\0\0\0\x05\0\0\0\x05Serif\0\0\0"s);
  EXPECT_EQ(read.numbers.at("Xft/DPI"), 196608);
  EXPECT_EQ(read.texts.at("N"), "Serif");
}

TEST(XSettings, NotMoreThanAreCounted) {
  EXPECT_TRUE(parseXSettings(with(1, dpi + font)).texts.empty());
}

TEST(XSettings, WhateverIsCutOffLeavesWhatCameBefore) {
  const auto whole = with(2, dpi + font);
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const auto read = parseXSettings(whole.substr(0, length));
    EXPECT_TRUE(read.texts.empty()) << length;
    EXPECT_EQ(read.numbers.size(), length < with(2, dpi).size() ? 0U : 1U) << length;
  }
}

TEST(XSettings, AnUnknownKindEndsTheReading) {
  const auto read = parseXSettings(with(3, dpi + "\x09\0\x01\0N\0\0\0\0\0\0\0"s + font));
  EXPECT_EQ(read.numbers.size(), 1U);
  EXPECT_TRUE(read.texts.empty());
}

TEST(XSettings, ALengthBeyondTheEndEndsTheReading) {
  const auto read = parseXSettings(with(1, "\x01\0\x01\0N\0\0\0\0\0\0\0\xff\xff\xff\xff"s));
  EXPECT_TRUE(read.texts.empty());
}

}  // namespace
}  // namespace launcher
