#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "base/Unicode.h"
#include "base/UnicodeRules.h"
#include "tests/contract/base/CodePointNotation.h"
#include "tests/contract/base/FoundationTexts.h"

// The Unicode Consortium's own test files, where the system has them, and our count of the texts
// that macOS counts in two ways.
namespace launcher {
namespace {

constexpr const char* kGraphemeFile = "/usr/share/unicode/auxiliary/GraphemeBreakTest.txt";
constexpr const char* kNormalizationFile = "/usr/share/unicode/NormalizationTest.txt.bz2";

bool exists(const char* path) { return std::ifstream(path).good(); }

struct GraphemeCase {
  std::u16string units;
  std::size_t clusters = 0;
};

/// Decodes "÷ 0020 × 0308 ÷ 0020 ÷": each "÷" after the first ends a cluster.
GraphemeCase graphemeCase(const std::string& line) {
  GraphemeCase result;
  std::istringstream words(line);
  std::string word;
  words >> word;
  while (words >> word) {
    if (word == "÷") {
      ++result.clusters;
    } else if (word != "×") {
      result.units += unitsOf(word);
    }
  }
  return result;
}

TEST(UnicodeRulesLinuxTest, CountsGraphemeClustersAsTheConsortiumDoes) {
  if (!exists(kGraphemeFile)) GTEST_SKIP() << "no file " << kGraphemeFile;
  std::ifstream file(kGraphemeFile);
  int cases = 0;
  for (std::string line; std::getline(file, line);) {
    const std::string data = line.substr(0, line.find('#'));
    if (data.empty()) continue;
    const GraphemeCase expected = graphemeCase(data);
    EXPECT_EQ(graphemeClusterCount(expected.units), expected.clusters) << line;
    EXPECT_EQ(characterCount(utf8(expected.units)), expected.clusters) << line;
    ++cases;
  }
  EXPECT_GT(cases, 600);
}

std::vector<std::u16string> columnsOf(const std::string& line) {
  std::vector<std::u16string> columns;
  std::istringstream fields(line);
  for (std::string field; columns.size() < 5 && std::getline(fields, field, ';');) {
    columns.push_back(unitsOf(field));
  }
  return columns;
}

std::string decompressed(const char* path) {
  const std::string command = std::string("bzcat ") + path;
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  std::string text;
  char buffer[65536];
  while (const std::size_t count = fread(buffer, 1, sizeof buffer, pipe.get())) {
    text.append(buffer, count);
  }
  return text;
}

TEST(UnicodeRulesLinuxTest, DecomposesAsTheConsortiumDoes) {
  if (!exists(kNormalizationFile)) GTEST_SKIP() << "no file " << kNormalizationFile;
  std::istringstream file(decompressed(kNormalizationFile));
  int cases = 0;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line[0] == '#' || line[0] == '@') continue;
    const std::vector<std::u16string> c = columnsOf(line);
    ASSERT_EQ(c.size(), 5U) << line;
    const std::u16string wanted[] = {c[2], c[2], c[2], c[4], c[4]};
    for (std::size_t column = 0; column < 5; ++column) {
      EXPECT_EQ(decomposition(c[column]), wanted[column]) << line << " column " << column + 1;
    }
    ++cases;
  }
  EXPECT_GT(cases, 19000);
}

TEST(UnicodeRulesLinuxTest, CountsCharactersAsTheLanguagesRuntimeDoes) {
  for (const auto& [points, characters, composed] : kDifferingCounts) {
    // Whether a joiner joins two dingbats depends on the version of Unicode.
    if (points == "2701 200D 2701") continue;
    EXPECT_EQ(graphemeClusterCount(unitsOf(points)), characters) << points;
  }
}

}  // namespace
}  // namespace launcher
