#include <gtest/gtest.h>

#include "base/Unicode.h"
#include "base/UnicodeRules.h"
#include "tests/contract/base/CodePointNotation.h"
#include "tests/contract/base/FoundationTexts.h"

namespace launcher {
namespace {

TEST(UnicodeRulesTest, AcceptsTheEmptyText) {
  EXPECT_EQ(graphemeClusterCount(u""), 0U);
  EXPECT_EQ(decomposition(u""), u"");
}

TEST(UnicodeRulesTest, CountsCharactersAsFoundationDoes) {
  for (const auto& [points, characters] : kCharacterCounts) {
    EXPECT_EQ(graphemeClusterCount(unitsOf(points)), characters) << points;
    EXPECT_EQ(characterCount(utf8(unitsOf(points))), characters) << points;
  }
}

TEST(UnicodeRulesTest, ALineEndIsOneCharacter) {
  EXPECT_EQ(graphemeClusterCount(u"\r\n"), 1U);
  EXPECT_EQ(graphemeClusterCount(u"\u00e9\r\n\r\n"), 3U);
}

TEST(UnicodeRulesTest, ComparesAsFoundationDoes) {
  for (const auto& [one, other, isEqual] : kEqualities) {
    EXPECT_EQ(canonicallyEqual(utf8(unitsOf(one)), utf8(unitsOf(other))), isEqual)
        << one << " and " << other;
  }
}

}  // namespace
}  // namespace launcher
