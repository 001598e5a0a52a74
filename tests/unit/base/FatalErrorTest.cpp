#include <gtest/gtest.h>

#include "base/FatalError.h"

namespace launcher {
namespace {

TEST(FatalErrorDeathTest, NamesFileAndLine) {
  EXPECT_DEATH(fatalError("", "ProcessHelpers", 43), "fatal error: file ProcessHelpers, line 43\n");
}

TEST(FatalErrorDeathTest, PutsTheMessageFirst) {
  EXPECT_DEATH(fatalError("message", "File", 7), "fatal error: message: file File, line 7\n");
}

}  // namespace
}  // namespace launcher
