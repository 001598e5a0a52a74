#include <gtest/gtest.h>

#include "base/UnicodeRules.h"
#include "tests/contract/base/CodePointNotation.h"
#include "tests/contract/base/FoundationTexts.h"

// On macOS, composed character sequences count as characters.
namespace launcher {
namespace {

TEST(UnicodeRulesMacTest, CountsComposedCharacterSequences) {
  for (const auto& [points, characters, composed] : kDifferingCounts) {
    EXPECT_EQ(graphemeClusterCount(unitsOf(points)), composed) << points;
  }
}

}  // namespace
}  // namespace launcher
