#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <memory>
#include <string>
#include <utility>
#include <vector>

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

TEST(Fonts, AreOfTheFamilyThatTheDesktopPrefers) {
  ASSERT_NE(desktopFont("en", FontWeight::regular), "DejaVuSansMono");
  EXPECT_EQ(desktopFont("en", FontWeight::regular, "DejaVu Sans Mono"), "DejaVuSansMono");
  EXPECT_EQ(desktopFont("", FontWeight::bold, "DejaVu Sans Mono"), "DejaVuSansMono-Bold");
}

TEST(Fonts, AreOthersWhereThatFamilyIsNotThereOrLacksTheLetters) {
  EXPECT_EQ(desktopFont("en", FontWeight::regular, "No Such Family"),
            desktopFont("en", FontWeight::regular));
  EXPECT_EQ(desktopFont("ja", FontWeight::regular, "DejaVu Sans Mono"),
            desktopFont("ja", FontWeight::regular));
}

TEST(Fonts, TheFamilyIsWhatStandsBeforeTheSize) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"Cantarell 11", "Cantarell"},
      {"Noto Sans,  10.5", "Noto Sans"},
      {"Ubuntu", "Ubuntu"},
      {"DejaVu Sans Mono 9", "DejaVu Sans Mono"},
      {"11", ""},
      {"", ""},
  };
  for (const auto& [description, family] : cases) {
    EXPECT_EQ(fontFamily(description), family) << description;
  }
}

TEST(Fonts, ThereIsOneForWhicheverLanguage) { EXPECT_NE(desktopFont("", FontWeight::regular), ""); }

}  // namespace
}  // namespace launcher
