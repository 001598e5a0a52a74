// How much memory the texts that nobody types may cost.

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <string_view>

#include "net/AddressChecks.h"
#include "tests/contract/linux/MemoryLimit.h"

namespace launcher {
namespace {

/// The text repeated until it has at least a million bytes.
std::string million(std::string_view text) {
  std::string all;
  while (all.size() < 1'000'000) all += text;
  return all;
}

/// Makes every check of a typed text with at most 64 MB more memory, and ends the process. Exits
/// with success if there was an answer.
[[noreturn]] void judgeWithin64MB(const std::string& text) {
  const auto detector = makeLinkDetector();
  limitMemoryTo64MB();
  const bool valid = isValidURLAddress(text, *detector);
  const bool link = validURLAddress(text, InsecureScheme::allowed, *detector).has_value();
  std::_Exit((valid && !link) || validIPAddress(text) ? 1 : 0);
}

TEST(HostileTextsLinuxDeathTest, MillionsOfCharactersTakeLittleMemory) {
  if (!memoryCanBeLimited) GTEST_SKIP() << "the sanitizer needs the address space";
  for (const std::string& text :
       {million("a"), million("://"), million("a."), million("a@"), million("%41"), million("\xff"),
        million("\u202e"), million("e\u0301"), million("\U0001F468\u200d"), million({"\0", 1}),
        "https://" + million("a.b"), "https://h.example/" + million("("),
        "https://" + million("\u00e9") + ".example", "https://h.example/" + million("\u4e2d"),
        "[" + million("1:"), million("https://h.example ")}) {
    EXPECT_EXIT(judgeWithin64MB(text), testing::ExitedWithCode(0), "") << text.substr(0, 30);
  }
}

}  // namespace
}  // namespace launcher
