#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "discovery/ListingRun.h"
#include "tests/doubles/FakeListingTool.h"
#include "tests/doubles/FakeSleeper.h"

namespace launcher {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;

const std::string kListing = "<plist><dict><key>images</key><string>all</string></dict></plist>";

/// One search, with what the test puts in its way.
class ListingRunTest : public testing::Test {
 protected:
  std::optional<std::string> search() {
    return extractSourceFromDMG(
        [this] {
          ++runs_;
          return tool_;
        },
        sleeper_,
        [this](const PropertyList::Dictionary& listing) {
          tool_->log->note("judged");
          listings_.push_back(listing);
          return location_;
        });
  }

  bool has(const std::string& event) const {
    const std::vector<std::string> events = tool_->log->events();
    return std::find(events.begin(), events.end(), event) != events.end();
  }

  void waitUntil(const std::string& event) const {
    while (!has(event)) std::this_thread::yield();
  }

  /// The listing's text at "images", once for each time that the listing was judged.
  std::vector<std::string> judged() const {
    std::vector<std::string> texts;
    for (const auto& listing : listings_) texts.push_back(*valueAt(listing, "images")->text());
    return texts;
  }

  std::shared_ptr<FakeListingTool> tool_ = std::make_shared<FakeListingTool>();
  FakeSleeper sleeper_;
  std::optional<std::string> location_ = "https://h/D/";
  std::vector<PropertyList::Dictionary> listings_;
  int runs_ = 0;
};

TEST_F(ListingRunTest, ReturnsTheJudgesAnswer) {
  tool_->output = {kListing};
  EXPECT_EQ(search(), "https://h/D/");
  EXPECT_THAT(judged(), ElementsAre("all"));
  EXPECT_EQ(runs_, 1);
}

TEST_F(ListingRunTest, ReturnsNothingWhereNothingIsFound) {
  tool_->output = {kListing};
  location_ = std::nullopt;
  EXPECT_EQ(search(), std::nullopt);
  EXPECT_THAT(judged(), ElementsAre("all"));
}

TEST_F(ListingRunTest, JoinsManyPiecesInTheirOrder) {
  for (const char c : kListing) tool_->output.emplace_back(1, c);
  EXPECT_EQ(search(), "https://h/D/");
  EXPECT_THAT(judged(), ElementsAre("all"));
}

TEST_F(ListingRunTest, KeepsItsOrder) {
  tool_->output = {kListing};
  sleeper_.log = tool_->log;
  sleeper_.onSleep = [this] { waitUntil("waited for"); };
  search();
  EXPECT_THAT(tool_->log->events(),
              ElementsAre("exit handler set", "output handler set", "launched", "waited for",
                          "sleep", "output handler removed", "judged"));
  EXPECT_THAT(sleeper_.sleeps, ElementsAre(1.0));
}

TEST_F(ListingRunTest, OutputDuringThePauseCounts) {
  tool_->output = {kListing.substr(0, 20)};
  sleeper_.onSleep = [this] { tool_->print(kListing.substr(20)); };
  EXPECT_EQ(search(), "https://h/D/");
}

TEST_F(ListingRunTest, OutputAfterThePauseIsLost) {
  tool_->output = {kListing.substr(0, 20)};
  search();
  tool_->print(kListing.substr(20));
  EXPECT_THAT(judged(), ElementsAre());
}

TEST_F(ListingRunTest, WaitsForTheJudgementAfterTheToolHasEnded) {
  tool_->output = {kListing};
  sleeper_.onSleep = [this] { waitUntil("waited for"); };
  EXPECT_EQ(search(), "https://h/D/");
}

TEST_F(ListingRunTest, WhatIsNoPropertyListGivesNothing) {
  const std::string outputs[] = {
      "",
      "attached-images: no such device\n",
      "attached-images: no such device\n" + kListing,
      "<plist><dict>\nattached-images: no such device\n" + kListing.substr(13),
      kListing.substr(0, kListing.size() - 1),
      "\xff\xfe\xff",
  };
  for (const std::string& output : outputs) {
    tool_ = std::make_shared<FakeListingTool>();
    tool_->output = {output};
    EXPECT_EQ(search(), std::nullopt) << output;
  }
  EXPECT_THAT(judged(), ElementsAre());
  EXPECT_EQ(sleeper_.sleeps, std::vector<double>(std::size(outputs), 1.0));
}

TEST_F(ListingRunTest, AToolThatCannotBeStartedGivesNothingAtOnce) {
  tool_->startable = false;
  EXPECT_EQ(search(), std::nullopt);
  EXPECT_FALSE(has("waited for"));
  EXPECT_THAT(sleeper_.sleeps, ElementsAre());
  EXPECT_THAT(judged(), ElementsAre());
}

TEST_F(ListingRunTest, EverySearchIsARunOfItsOwn) {
  tool_->output = {kListing};
  search();
  tool_ = std::make_shared<FakeListingTool>();
  tool_->output = {"<plist><dict><key>images</key><string>none</string></dict></plist>"};
  search();
  EXPECT_THAT(judged(), ElementsAre("all", "none"));
  EXPECT_EQ(runs_, 2);
}

TEST_F(ListingRunTest, ASearchKeepsNothing) {
  for (const bool startable : {true, false}) {
    tool_ = std::make_shared<FakeListingTool>();
    tool_->startable = startable;
    tool_->output = {kListing};
    search();
    const std::weak_ptr<FakeListingTool> left = tool_;
    tool_.reset();
    EXPECT_TRUE(left.expired()) << "startable: " << startable;
  }
}

using ListingRunDeathTest = ListingRunTest;

TEST_F(ListingRunDeathTest, AListingThatIsNoDictionaryEndsTheProgram) {
  for (const char* list : {"<array/>", "<string>images</string>", "<true/>"}) {
    tool_ = std::make_shared<FakeListingTool>();
    tool_->output = {list};
    EXPECT_DEATH(search(), "fatal error: the listing is not a dictionary with text keys: file ")
        << list;
  }
}

TEST_F(ListingRunDeathTest, AListingWithOtherKeysEndsTheProgram) {
  // A binary list of a dictionary with the number 1 as its key and its value.
  tool_->output = {"bplist00\xD1\x01\x01\x10\x01\x08\x0B"s + std::string(6, '\0') + "\x01\x01" +
                   "\0\0\0\0\0\0\0\x02"s + std::string(8, '\0') + "\0\0\0\0\0\0\0\x0D"s};
  EXPECT_DEATH(search(), "fatal error: the listing is not a dictionary with text keys");
}

}  // namespace
}  // namespace launcher
