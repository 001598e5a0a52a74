#include <gtest/gtest.h>

#include <cstdint>

#include "net/SocketLength.h"

namespace launcher {
namespace {

TEST(SocketLengthTest, KeepsWhatFits32Bits) {
  EXPECT_EQ(socketLength(0), 0U);
  EXPECT_EQ(socketLength(28), 28U);
  EXPECT_EQ(socketLength(0xFFFFFFFF), 0xFFFFFFFF);
}

TEST(SocketLengthDeathTest, EndsTheProgramForMore) {
  EXPECT_DEATH(socketLength(std::size_t{1} << 32U), "fatal error: .*SocketLength");
}

}  // namespace
}  // namespace launcher
