#include <gtest/gtest.h>

#include "base/UnicodeRules.h"
#include "tests/contract/base/CodePointNotation.h"
#include "tests/contract/base/FoundationTexts.h"

// Composed character sequences stand for characters here.
namespace launcher {
namespace {

TEST(UnicodeRulesMacTest, CountsComposedCharacterSequences) {
  for (const auto& [points, characters, composed] : kDifferingCounts) {
    EXPECT_EQ(graphemeClusterCount(unitsOf(points)), composed) << points;
  }
}

}  // namespace
}  // namespace launcher
