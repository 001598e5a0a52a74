// Which diagnostics are written, and by whom. The shipped entry point drops them all, so the files
// that call it are compiled once more against one that keeps them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/SDLog.h"
#include "discovery/ImageRecords.h"
#include "discovery/ListingRun.h"
#include "tests/doubles/FakeListingTool.h"
#include "tests/unit/controller/ControllerFixture.h"

namespace launcher {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::UnorderedElementsAre;

const std::string toolHasEnded = "the listing tool has ended";
const std::string waited = "waited for the listing tool";

/// The messages so far. Each must name the same file and this operation.
std::vector<std::string> messagesOf(const std::string& operation) {
  std::vector<std::string> messages;
  for (const Diagnostic& diagnostic : diagnostics) {
    EXPECT_EQ(diagnostic.filename, "ViewController");
    EXPECT_EQ(diagnostic.funcname, operation);
    messages.push_back(diagnostic.message);
  }
  return messages;
}

class DiagnosticsTest : public ControllerFixture {
 protected:
  DiagnosticsTest() { diagnostics.clear(); }

  /// A run of the listing tool that prints `output` and is judged to lead to `location`.
  std::vector<std::string> messagesOfRun(const std::string& output,
                                         const std::optional<std::string>& location) {
    auto tool = std::make_shared<FakeListingTool>();
    tool->output = {output};
    extractSourceFromDMG([&] { return tool; }, sleeper,
                         [&](const PropertyList::Dictionary&) { return location; });
    return messagesOf("extractSourceFromDMG()");
  }
};

TEST_F(DiagnosticsTest, APressWritesOneBeforeAnythingElse) {
  fill("", "");
  controller.launchButtonClick();
  EXPECT_THAT(messagesOf("launchButtonClick(_:)"), ElementsAre(Not(IsEmpty())));
}

TEST_F(DiagnosticsTest, AnEvaluationWritesNone) {
  fill("https://server.example", "10.0.0.5");
  controller.updateState();
  EXPECT_THAT(diagnostics, IsEmpty());
}

TEST_F(DiagnosticsTest, AListingRunTellsItsStepsAndItsResult) {
  const auto messages = messagesOfRun("<plist><dict/></plist>", "https://h/D/");
  EXPECT_THAT(messages, UnorderedElementsAre(toolHasEnded, waited, "https://h/D/"));
  EXPECT_EQ(messages.back(), "https://h/D/");
}

TEST_F(DiagnosticsTest, AListingRunTellsAnAbsentResultToo) {
  const auto messages = messagesOfRun("<plist><dict/></plist>", std::nullopt);
  EXPECT_THAT(messages, UnorderedElementsAre(toolHasEnded, waited, "(nothing)"));
  EXPECT_EQ(messages.back(), "(nothing)");
}

TEST_F(DiagnosticsTest, OutputThatIsNoListIsToldWithTheError) {
  EXPECT_THAT(
      messagesOfRun("no such device", "https://h/D/"),
      UnorderedElementsAre(toolHasEnded, waited, Not(IsEmpty()), "no such device", "(nothing)"));
}

TEST_F(DiagnosticsTest, NoOutputIsToldAsTheEmptyText) {
  EXPECT_THAT(messagesOfRun("", "https://h/D/"),
              UnorderedElementsAre(toolHasEnded, waited, Not(IsEmpty()), "", "(nothing)"));
}

TEST_F(DiagnosticsTest, OutputThatIsNoTextIsToldAsNothing) {
  EXPECT_THAT(messagesOfRun("\xff\xfe\xff", "https://h/D/"),
              UnorderedElementsAre(toolHasEnded, waited, Not(IsEmpty()), "(nothing)", "(nothing)"));
}

TEST_F(DiagnosticsTest, TheChoiceOfTheImageTellsTheReferencePathAndEachMountPoint) {
  const auto volume = [](const char* folder) {
    return PropertyList::Dictionary{{"mount-point", folder}};
  };
  const PropertyList::Dictionary image = {
      {"image-path", "/a.dmg"},
      {"system-entities", PropertyList::Array{volume("/Volumes/Other"), volume("/Volumes/Vorx")}}};
  processDMGData({{"images", PropertyList::Array{image}}}, bundle, [](const Url&) {
    diagnostics.push_back({"asked for the origin", "ViewController", "processDMGData(plist:)"});
    return std::nullopt;
  });
  EXPECT_THAT(
      messagesOf("processDMGData(plist:)"),
      ElementsAre("/Volumes/Vorx", "/Volumes/Other", "/Volumes/Vorx", "asked for the origin"));
}

TEST_F(DiagnosticsTest, ReadingAnOriginWritesNone) {
  origin.list = "no list";
  controller.extractWhereAreYouFrom(Url::ofFile("/a.dmg"));
  EXPECT_THAT(diagnostics, IsEmpty());
}

}  // namespace
}  // namespace launcher
