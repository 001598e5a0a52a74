#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

#include "base/SDLog.h"

namespace launcher {
namespace {

struct Unprintable {};

TEST(SDLogTest, WritesNothingWhateverItIsHanded) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  SDLog("message");
  SDLog(std::string("message"), "ViewController");
  SDLog(std::optional<std::string>(), "ViewController", "searchDMGs()");
  SDLog(std::make_unique<int>(7), "ViewController", "searchDMGs()");
  SDLog(nullptr);
  SDLog(-1);
  SDLog(Unprintable{});
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace launcher
