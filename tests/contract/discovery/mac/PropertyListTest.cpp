// What the reader on macOS does in its own way.

#include <gtest/gtest.h>

#include <string>

#include "tests/contract/discovery/BinaryList.h"
#include "tests/contract/discovery/DescribedList.h"
#include "tests/contract/discovery/FoundationLists.h"

namespace launcher {
namespace {

using namespace std::string_literals;

TEST(PropertyListMacTest, ReadsWhatTheFoundationReads) {
  for (const auto& [systems, bytes, expected] : foundationLists()) {
    EXPECT_EQ(visible(describedReading(bytes)), expected) << visible(bytes);
  }
}

TEST(PropertyListMacTest, ChecksValuesThatNobodyReads) {
  for (const std::string& object :
       {"\x07"s, "\x0f"s, "\x15"s + std::string(32, '\0'), "\x21"s + std::string(2, '\0'),
        "\x24"s + std::string(16, '\0'), "\x32"s + std::string(4, '\0'),
        "\x84"s + std::string(5, '\xff')}) {
    BinaryList list;
    list.objects = {object};
    EXPECT_EQ(describedReading(list.bytes()), "error") << visible(object);
  }
  for (const char* element : {"<data/>", "<data>\u00e9</data>", "<false> </false>",
                              "<integer>-9223372036854775809</integer>"}) {
    EXPECT_EQ(describedReading(element), "error") << element;
  }
}

}  // namespace
}  // namespace launcher
