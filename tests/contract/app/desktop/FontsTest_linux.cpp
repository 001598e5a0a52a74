#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <memory>
#include <string>

#include "app/desktop/Fonts.h"

namespace launcher {
namespace {

struct ClosePipe {
  void operator()(std::FILE* pipe) const { pclose(pipe); }
};

/// What the desktop's own tool answers.
std::string toolsAnswer(const std::string& pattern) {
  const std::string command = "fc-match --format='%{postscriptname}' '" + pattern + "'";
  const std::unique_ptr<std::FILE, ClosePipe> pipe{popen(command.c_str(), "r")};
  std::array<char, 256> answer{};
  return std::fgets(answer.data(), answer.size(), pipe.get()) == nullptr ? "" : answer.data();
}

TEST(Fonts, AreThoseOfTheDesktop) {
  for (const std::string language : {"en", "de-DE", "pt-BR", "ja-JP", "ja", "zh-CN", "xx"}) {
    SCOPED_TRACE(language);
    const std::string pattern = "sans-serif:lang=" + language;
    EXPECT_EQ(desktopFont(language, FontWeight::regular), toolsAnswer(pattern + ":weight=80"));
    EXPECT_EQ(desktopFont(language, FontWeight::bold), toolsAnswer(pattern + ":weight=200"));
  }
}

TEST(Fonts, ThereIsOneForWhicheverLanguage) { EXPECT_NE(desktopFont("", FontWeight::regular), ""); }

}  // namespace
}  // namespace launcher
