#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "discovery/ImageRecords.h"
#include "tests/doubles/FakeBundle.h"

namespace launcher {
namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;
using testing::ElementsAre;

PropertyList mountedAt(const std::string& folder) {
  return Dictionary{{"dev-entry", "/dev/disk2"}, {"mount-point", folder}};
}

PropertyList image(const std::string& path, const Array& entities) {
  return Dictionary{{"image-path", path}, {"system-entities", entities}};
}

Dictionary listing(const Array& images) { return {{"images", images}}; }

/// An application in /Volumes/Vorx, and image files with or without a recorded location.
class ImageRecordsTest : public testing::Test {
 protected:
  std::optional<std::string> process(const Dictionary& list) {
    asked_.clear();
    return processDMGData(list, bundle_, [this](const Url& file) {
      asked_.push_back(file.absoluteString());
      const auto found = locations_.find(file.absoluteString());
      return found == locations_.end() ? std::nullopt : std::optional(found->second);
    });
  }

  FakeBundle bundle_;
  std::map<std::string, std::string> locations_ = {{"file:///a.dmg", "https://a/"},
                                                   {"file:///b.dmg", "https://b/"}};
  std::vector<std::string> asked_;  ///< the image files, in order
};

TEST_F(ImageRecordsTest, FindsTheImageThatHoldsTheApplication) {
  EXPECT_EQ(process(listing({image("/b.dmg", {mountedAt("/Volumes/Other")}),
                             image("/a.dmg", {mountedAt("/Volumes/Vorx")})})),
            "https://a/");
  EXPECT_THAT(asked_, ElementsAre("file:///a.dmg"));
}

/// Counts how often it is asked where it lies.
class CountedBundle : public FakeBundle {
 public:
  mutable int asked = 0;

  std::string path() const override {
    ++asked;
    return FakeBundle::path();
  }
};

TEST(ImageRecordsFolderTest, TheApplicationsPathIsReadOnce) {
  const CountedBundle bundle;
  const PropertyList unknown =
      image("/a.dmg", {mountedAt("/Volumes/Vorx"), mountedAt("/Volumes/Other")});
  const auto refuse = [](const Url&) { return std::optional<std::string>(); };
  EXPECT_EQ(processDMGData(listing({unknown, unknown}), bundle, refuse), std::nullopt);
  EXPECT_EQ(bundle.asked, 1);
  EXPECT_EQ(processDMGData({}, bundle, refuse), std::nullopt);
  EXPECT_EQ(bundle.asked, 2) << "once in each call";
}

TEST_F(ImageRecordsTest, FindsItThroughALaterVolume) {
  EXPECT_EQ(process(listing(
                {image("/a.dmg", {Dictionary{{"dev-entry", "/dev/disk2"}},
                                  mountedAt("/Volumes/Other"), mountedAt("/Volumes/Vorx")})})),
            "https://a/");
}

TEST_F(ImageRecordsTest, TheFirstOfTwoMatchesIsAskedFirst) {
  EXPECT_EQ(process(listing({image("/b.dmg", {mountedAt("/Volumes/Vorx")}),
                             image("/a.dmg", {mountedAt("/Volumes/Vorx")})})),
            "https://b/");
  EXPECT_THAT(asked_, ElementsAre("file:///b.dmg"));
}

TEST_F(ImageRecordsTest, TheSecondIsAskedWhereTheFirstKnowsNothing) {
  EXPECT_EQ(process(listing({image("/unknown.dmg", {mountedAt("/Volumes/Vorx")}),
                             image("/a.dmg", {mountedAt("/Volumes/Vorx")})})),
            "https://a/");
  EXPECT_THAT(asked_, ElementsAre("file:///unknown.dmg", "file:///a.dmg"));
}

TEST_F(ImageRecordsTest, AnImageIsAskedOnceForEachMatch) {
  EXPECT_EQ(process(listing(
                {image("/unknown.dmg", {mountedAt("/Volumes/Vorx"), mountedAt("/Volumes/Other"),
                                        mountedAt("/Volumes/Vorx")}),
                 image("/unknown2.dmg", {mountedAt("/Volumes/Vorx")})})),
            std::nullopt);
  EXPECT_THAT(asked_,
              ElementsAre("file:///unknown.dmg", "file:///unknown.dmg", "file:///unknown2.dmg"));
}

TEST_F(ImageRecordsTest, OnlyTheFolderItselfMatches) {
  const struct {
    std::string mountPoint;
    bool matches;
  } cases[] = {
      {"/Volumes/Vorx", true},
      {"/Volumes/Vorx/", false},
      {"/Volumes/Vorx/VorxLauncher.app", false},
      {"/Volumes", false},
      {"/", false},
      {"", false},
      {"/volumes/vorx", false},
      {"/Volumes/Vor", false},
      {"/Volumes/Vorx 1", false},
      {"/Volumes//Vorx", false},
      {"Volumes/Vorx", false},
  };
  for (const auto& [mountPoint, matches] : cases) {
    EXPECT_EQ(process(listing({image("/a.dmg", {mountedAt(mountPoint)})})).has_value(), matches)
        << mountPoint;
  }
}

TEST_F(ImageRecordsTest, AnApplicationInASubfolderFindsNothing) {
  bundle_.folder = "/Volumes/Vorx/Folder/VorxLauncher.app";
  EXPECT_EQ(process(listing({image("/a.dmg", {mountedAt("/Volumes/Vorx")})})), std::nullopt);
}

struct FolderCase {
  std::string bundle;
  std::string mountPoint;
};

TEST_F(ImageRecordsTest, TheFolderIsTakenAsAPlainPath) {
  const FolderCase cases[] = {
      {"/Volumes/A B %41 #1?/VorxLauncher.app", "/Volumes/A B %41 #1?"},
      {"/VorxLauncher.app", "/"},
      {"/Volumes/\u65e5\u672c/VorxLauncher.app", "/Volumes/\u65e5\u672c"},
  };
  for (const auto& [bundle, mountPoint] : cases) {
    bundle_.folder = bundle;
    EXPECT_EQ(process(listing({image("/a.dmg", {mountedAt(mountPoint)})})), "https://a/") << bundle;
  }
}

TEST_F(ImageRecordsTest, CanonicallyEquivalentFoldersMatch) {
  const std::string composed = "/Volumes/Caf\u00e9";
  const std::string decomposed = "/Volumes/Cafe\u0301";
  for (const auto& [folder, mountPoint] :
       {FolderCase{composed, decomposed}, FolderCase{decomposed, composed}}) {
    bundle_.folder = folder + "/VorxLauncher.app";
    EXPECT_EQ(process(listing({image("/a.dmg", {mountedAt(mountPoint)})})), "https://a/");
    EXPECT_EQ(process(listing({image("/a.dmg", {mountedAt("/Volumes/Cafe")})})), std::nullopt);
    EXPECT_EQ(process(listing({image("/a.dmg", {mountedAt("/Volumes/CAF\u00c9")})})), std::nullopt);
  }
}

TEST_F(ImageRecordsTest, TheImageFileMayHaveAnyName) {
  locations_ = {{"file:///a%20b%25.dmg", "https://a/"}};
  EXPECT_EQ(process(listing({image("/a b%.dmg", {mountedAt("/Volumes/Vorx")})})), "https://a/");
}

TEST_F(ImageRecordsTest, AListingWithoutImagesHoldsNothing) {
  const PropertyList match = image("/a.dmg", {mountedAt("/Volumes/Vorx")});
  const Dictionary lists[] = {
      {},
      {{"images", Array{}}},
      {{"images", "images"}},
      {{"images", PropertyList()}},
      {{"images", Dictionary{{"image", match}}}},
      {{"images", Array{match, "text"}}},
      {{"images", Array{match, PropertyList()}}},
      {{"Images", Array{match}}},
      {{"image", Array{match}}},
  };
  for (const Dictionary& list : lists) {
    EXPECT_EQ(process(list), std::nullopt);
    EXPECT_THAT(asked_, ElementsAre());
  }
}

TEST_F(ImageRecordsTest, RecordsThatLackSomethingAreSkipped) {
  const Array matching = {mountedAt("/Volumes/Vorx")};
  const PropertyList records[] = {
      Dictionary{},
      Dictionary{{"system-entities", matching}},
      Dictionary{{"image-path", PropertyList()}, {"system-entities", matching}},
      Dictionary{{"image-path", Array{"/b.dmg"}}, {"system-entities", matching}},
      Dictionary{{"Image-Path", "/b.dmg"}, {"system-entities", matching}},
      Dictionary{{"image-path", "/b.dmg"}},
      Dictionary{{"image-path", "/b.dmg"}, {"system-entities", "/Volumes/Vorx"}},
      Dictionary{{"image-path", "/b.dmg"}, {"system-entities", matching.front()}},
      Dictionary{{"image-path", "/b.dmg"}, {"system-entities", Array{}}},
      Dictionary{{"image-path", "/b.dmg"}, {"system-entities", Array{matching.front(), "text"}}},
  };
  for (const PropertyList& record : records) {
    EXPECT_EQ(process(listing({record, image("/a.dmg", matching)})), "https://a/");
    EXPECT_THAT(asked_, ElementsAre("file:///a.dmg"));
  }
}

TEST_F(ImageRecordsTest, VolumesThatLackSomethingAreSkipped) {
  const PropertyList entities[] = {
      Dictionary{},
      Dictionary{{"mount-point", PropertyList()}},
      Dictionary{{"mount-point", Array{"/Volumes/Vorx"}}},
      Dictionary{{"Mount-Point", "/Volumes/Vorx"}},
      Dictionary{{"dev-entry", "/Volumes/Vorx"}},
  };
  for (const PropertyList& entity : entities) {
    EXPECT_EQ(process(listing({image("/a.dmg", {entity, mountedAt("/Volumes/Vorx")})})),
              "https://a/");
    EXPECT_THAT(asked_, ElementsAre("file:///a.dmg"));
  }
}

TEST_F(ImageRecordsTest, AVolumeThatIsNotMountedIsNoMatch) {
  EXPECT_EQ(process(listing({image("/a.dmg", {Dictionary{{"dev-entry", "/dev/disk2"}}})})),
            std::nullopt);
  EXPECT_THAT(asked_, ElementsAre());
}

}  // namespace
}  // namespace launcher
