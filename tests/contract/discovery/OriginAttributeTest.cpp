#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "base/Url.h"
#include "discovery/DownloadOrigin.h"
#include "discovery/OriginAttribute.h"
#include "tests/contract/ScratchFolder.h"
#include "tests/contract/discovery/FileAttributes.h"

namespace launcher {
namespace {

using namespace std::string_literals;

class OriginAttributeTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!setAttribute(file_, kWhereFroms, value_)) {
      GTEST_SKIP() << "the file system of " << folder_.path() << " keeps no attributes";
    }
  }

  std::ptrdiff_t probe(const std::string& path) const { return attribute_->read(path, nullptr, 0); }

  /// What reading into a buffer of `size` bytes gives: the answer, and the buffer with "." where
  /// nothing was written.
  std::string readInto(std::size_t size, const std::string& path) const {
    std::vector<std::byte> buffer(size, std::byte{'.'});
    const std::ptrdiff_t answer = attribute_->read(path, buffer.data(), buffer.size());
    std::string text = std::to_string(answer) + ":";
    for (const std::byte byte : buffer) text += static_cast<char>(byte);
    return text;
  }

  const ScratchFolder folder_;
  const std::string file_ = makeFile(folder_.file("image.dmg"));
  const std::string value_ = "recorded\0bytes"s;
  const std::unique_ptr<OriginAttribute> attribute_ = makeOriginAttribute();
};

TEST_F(OriginAttributeTest, TellsTheSizeThenTheBytes) {
  EXPECT_EQ(probe(file_), 14);
  EXPECT_EQ(readInto(14, file_), "14:recorded\0bytes"s);
}

TEST_F(OriginAttributeTest, ALargerBufferKeepsItsRest) {
  EXPECT_EQ(readInto(17, file_), "14:recorded\0bytes..."s);
}

TEST_F(OriginAttributeTest, ABufferThatIsTooSmallFails) {
  EXPECT_EQ(readInto(13, file_).substr(0, 3), "-1:");
  EXPECT_EQ(readInto(1, file_).substr(0, 3), "-1:");
}

TEST_F(OriginAttributeTest, AFileWithoutTheAttributeFails) {
  EXPECT_EQ(probe(makeFile(folder_.file("plain"))), -1);
  EXPECT_EQ(readInto(14, folder_.file("plain")), "-1:..............");
}

TEST_F(OriginAttributeTest, AMissingFileFails) {
  for (const std::string& path :
       {""s, folder_.file("missing"), file_ + "/below", std::string(100'000, 'x')}) {
    EXPECT_EQ(probe(path), -1) << path.substr(0, 200);
  }
}

TEST_F(OriginAttributeTest, SymbolicLinksAreFollowed) {
  std::filesystem::create_symlink(file_, folder_.file("link"));
  EXPECT_EQ(readInto(14, folder_.file("link")), "14:recorded\0bytes"s);
  std::filesystem::create_symlink(folder_.file("missing"), folder_.file("dangling"));
  EXPECT_EQ(probe(folder_.file("dangling")), -1);
}

TEST_F(OriginAttributeTest, AnEmptyAttributeHasNoBytes) {
  ASSERT_TRUE(setAttribute(file_, kWhereFroms, ""));
  EXPECT_EQ(probe(file_), 0);
  EXPECT_EQ(readInto(3, file_), "0:...");
}

TEST_F(OriginAttributeTest, FilesMayHaveAnyName) {
  for (const char* name : {" a b ", "%41#?", "\u00e9\u65e5", "a\nb", "-"}) {
    const std::string path = makeFile(folder_.file(name));
    ASSERT_TRUE(setAttribute(path, kWhereFroms, "x"));
    EXPECT_EQ(probe(path), 1) << path;
  }
}

TEST_F(OriginAttributeTest, ARecordedOriginGivesTheLocation) {
  const std::string path = makeFile(folder_.file("a b%.dmg"));
  ASSERT_TRUE(setAttribute(path, kWhereFroms,
                           "<plist><array><string>https://h/D/F.dmg</string><string>https://h/"
                           "</string></array></plist>"));
  EXPECT_EQ(extractWhereAreYouFrom(Url::ofFile(path), *attribute_), "https://h/D/");
  EXPECT_EQ(extractWhereAreYouFrom(Url::ofFile(file_), *attribute_), std::nullopt);
}

}  // namespace
}  // namespace launcher
