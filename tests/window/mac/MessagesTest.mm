// The messages that the controller answers.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#import "base/mac/Conversions.h"
#import "tests/window/mac/Messages.h"
#import "tests/window/mac/Stage.h"

namespace launcher {
namespace {

class MessagesTest : public testing::Test {
 protected:
  void SetUp() override { clearStage(); }

  ViewController* controller_ = loadedController();
};

TEST_F(MessagesTest, AreTheseAndNoOthers) {
  EXPECT_THAT(messagesOf([ViewController class]),
              testing::UnorderedElementsAreArray(controllerMessages()));
}

TEST_F(MessagesTest, GivesTheBackgroundQueueAndKeepsIt) {
  NSOperationQueue* queue = [controller_ backgroundQueue];
  EXPECT_TRUE([queue isKindOfClass:[NSOperationQueue class]]);
  EXPECT_EQ([controller_ backgroundQueue], queue);
  EXPECT_EQ([queue maxConcurrentOperationCount],
            NSOperationQueueDefaultMaxConcurrentOperationCount);
  EXPECT_NE([loadedController() backgroundQueue], queue);
}

TEST_F(MessagesTest, PassesTheRepresentedObjectThrough) {
  EXPECT_EQ([controller_ representedObject], nil);
  [controller_ setRepresentedObject:@"it"];
  EXPECT_EQ([controller_ representedObject], @"it");
}

TEST_F(MessagesTest, ChoosesTheAddress) {
  stage().resolver.answer = {ipv4("192.0.2.1")};
  EXPECT_EQ(toStdString([controller_ getIpAddressWithDomain:@"host" manualIP:@"10.0.0.5"]),
            "10.0.0.5");
  EXPECT_EQ(toStdString([controller_ getIpAddressWithDomain:@"host" manualIP:@""]), "192.0.2.1");
  stage().resolver.answer.reset();
  EXPECT_EQ([controller_ getIpAddressWithDomain:@"host" manualIP:@""], nil);
}

NSDictionary* listingOf(NSString* image, NSString* mountPoint) {
  NSArray* entities = @[ @{@"mount-point" : mountPoint} ];
  return @{@"images" : @[ @{@"image-path" : image, @"system-entities" : entities} ]};
}

TEST_F(MessagesTest, FollowsAListingToTheServer) {
  stage().bundle.folder = "/Volumes/Vorx/VorxLauncher.app";
  stage().origin.values["/D/i \u4e2d.dmg"] =
      "<plist><array><string>https://h/D/F</string></array></plist>";
  EXPECT_EQ(toStdString([controller_
                processDMGDataWithPlist:listingOf(@"/D/i \u4e2d.dmg", @"/Volumes/Vorx")]),
            "https://h/D/");
  EXPECT_EQ([controller_ processDMGDataWithPlist:listingOf(@"/D/i \u4e2d.dmg", @"/elsewhere")],
            nil);
}

TEST_F(MessagesTest, ReadsTheOriginOfAFile) {
  stage().origin.values["/D/a b.dmg"] = "<plist><array><string>http://h/F</string></array></plist>";
  EXPECT_EQ(
      toStdString([controller_ extractWhereAreYouFromUrl:[NSURL fileURLWithPath:@"/D/a b.dmg"]]),
      "http://h/");
  EXPECT_EQ([controller_ extractWhereAreYouFromUrl:[NSURL fileURLWithPath:@"/D/c.dmg"]], nil);
}

TEST_F(MessagesTest, FindsNothingWithoutAListing) {
  EXPECT_EQ([controller_ extractSourceFromDMG], nil);
}

TEST_F(MessagesTest, WritesAFoundLocationLaterAndInOrder) {
  [controller_ updateSourceLocationWithSource:@"http://first/"];
  [controller_ updateSourceLocationWithSource:@"https://second/\u4e2d"];
  EXPECT_EQ(textOf([controller_ vorxLocation]), "");
  settle();
  EXPECT_EQ(textOf([controller_ vorxLocation]), "https://second/\u4e2d");
}

}  // namespace
}  // namespace launcher
