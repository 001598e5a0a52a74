// The desktop's store of metadata: the real one on a bus of the test's own, and tools that
// misbehave.

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>

#include "base/Url.h"
#include "base/linux/Spawn.h"
#include "discovery/DownloadOrigin.h"
#include "discovery/OriginAttribute.h"
#include "discovery/linux/MetadataStore.h"
#include "tests/contract/ScratchFolder.h"
#include "tests/contract/discovery/FileAttributes.h"
#include "tests/contract/discovery/linux/DesktopSession.h"

namespace launcher {
namespace {

/// Runs a shell script in place of the desktop's tool.
class MetadataToolTest : public testing::Test {
 protected:
  std::optional<std::string> answerOf(const std::string& script,
                                      std::chrono::milliseconds limit = std::chrono::minutes(1)) {
    const std::string tool = folder_.file("tool");
    std::ofstream(tool) << "#!/bin/sh\n" << script << "\n";
    std::filesystem::permissions(tool, std::filesystem::perms::owner_all);
    return downloadAddress("/a b.dmg", {tool, limit});
  }

  const ScratchFolder folder_;
  const Variable bus_{"DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent"};
};

TEST_F(MetadataToolTest, TheLastLineHoldsTheAddress) {
  const struct {
    std::string output;
    std::optional<std::string> address;
  } cases[] = {
      {"uri: file:///a\nattributes:\n  metadata::download-uri: https://h/D/F\n", "https://h/D/F"},
      {"Attribute:\n  metadata::download-uri: https://h/D/a b: c", "https://h/D/a b: c"},
      {"  metadata::download-uri: \n", ""},
      {"attributes:\n", std::nullopt},
      {"", std::nullopt},
      {"\n", std::nullopt},
      {"local path: /a\n  metadata::download-uri: https://spoof/\nattributes:\n", std::nullopt},
      {"  metadata::download: https://h/D/F\n", std::nullopt},
      {"metadata::download-uri: https://h/D/F\n", std::nullopt},
  };
  for (const auto& [output, address] : cases) {
    std::ofstream(folder_.file("output")) << output;
    EXPECT_EQ(answerOf("cat '" + folder_.file("output") + "'"), address) << output;
  }
}

TEST_F(MetadataToolTest, IsAskedForTheOneAttributeOfTheFile) {
  answerOf("for i; do echo \"[$i]\"; done >'" + folder_.file("arguments") + "'");
  EXPECT_EQ(contentOf(folder_.file("arguments")),
            "[info]\n[--attributes=metadata::download-uri]\n[--]\n[/a b.dmg]\n");
}

TEST_F(MetadataToolTest, AMissingToolGivesNothing) {
  EXPECT_EQ(downloadAddress("/a", {.path = folder_.file("missing")}), std::nullopt);
}

TEST_F(MetadataToolTest, AToolThatDoesNotAnswerIsNotAwaitedAndEnds) {
  EXPECT_EQ(answerOf("exec sleep 1000", std::chrono::milliseconds(300)), std::nullopt);
  EXPECT_TRUE(eventually(hasNoChildren));
}

TEST_F(MetadataToolTest, AToolWithEndlessOutputIsCutOff) {
  EXPECT_EQ(answerOf("exec yes"), std::nullopt);
  EXPECT_EQ(answerOf("while echo a; do sleep 0.01; done", std::chrono::milliseconds(300)),
            std::nullopt);
  EXPECT_TRUE(eventually(hasNoChildren));
}

TEST_F(MetadataToolTest, WithoutASessionNoToolRuns) {
  const Variable noBus("DBUS_SESSION_BUS_ADDRESS", "");
  const Variable noFolder("XDG_RUNTIME_DIR", "");
  answerOf("touch '" + folder_.file("ran") + "'");
  EXPECT_FALSE(std::filesystem::exists(folder_.file("ran")));

  const Variable folder("XDG_RUNTIME_DIR", folder_.path());
  answerOf("touch '" + folder_.file("ran") + "'");
  EXPECT_FALSE(std::filesystem::exists(folder_.file("ran")));
  makeFile(folder_.file("bus"));
  answerOf("touch '" + folder_.file("ran") + "'");
  EXPECT_TRUE(std::filesystem::exists(folder_.file("ran")));
}

/// The store of a desktop's session.
class MetadataStoreTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!session_.isRunning()) GTEST_SKIP() << "no dbus-daemon";
    if (!record("https://first/")) GTEST_SKIP() << "no store of metadata (gio, gvfs)";
  }

  /// Records an address as Firefox does.
  bool record(const std::string& address) const {
    const auto child = spawn({.path = "/usr/bin/gio",
                              .arguments = {"set", file_, "metadata::download-uri", address},
                              .output = errors_.writer()});
    if (child == nullptr) return false;
    child->waitUntilExit();
    return patientAnswer(file_) == address;
  }

  /// Allows a minute: a busy machine may take longer than a person would wait.
  static std::optional<std::string> patientAnswer(const std::string& file) {
    return downloadAddress(file, {.limit = std::chrono::minutes(1)});
  }

  void expectLocation(const std::string& location) const {
    EXPECT_TRUE(eventually([&] {
      return extractWhereAreYouFrom(Url::ofFile(file_), *makeOriginAttribute()) == location;
    })) << location;
  }

  const DesktopSession session_;
  const Pipe errors_;
  const ScratchFolder folder_;
  const std::string file_ = makeFile(folder_.file("a b\n\u00e9.dmg"));
};

TEST_F(MetadataStoreTest, AnAddressInTheStoreGivesTheLocation) {
  ASSERT_TRUE(record("https://h:8443/D/Launcher.dmg?a=1&b=<2>"));
  expectLocation("https://h:8443/D/?a=1&b=%3C2%3E");
  EXPECT_EQ(patientAnswer(makeFile(folder_.file("other"))), std::nullopt);
  EXPECT_EQ(patientAnswer(folder_.file("missing")), std::nullopt);
}

TEST_F(MetadataStoreTest, WhatIsRecordedWithTheFileCountsFirst) {
  ASSERT_TRUE(record("https://store/D/F"));
  if (!setAttribute(file_, "user.xdg.origin.url", "https://file/D/F")) {
    GTEST_SKIP() << "the file system of " << folder_.path() << " keeps no attributes";
  }
  expectLocation("https://file/D/");
  ASSERT_TRUE(setAttribute(file_, kWhereFroms,
                           "<plist><array><string>https://copy/D/F</string></array></plist>"));
  expectLocation("https://copy/D/");
}

}  // namespace
}  // namespace launcher
