#include <gtest/gtest.h>

#include "discovery/PropertyList.h"

namespace launcher {
namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;

/// The text at a key, or what is there instead.
std::string textAt(const Dictionary& dictionary, std::string_view key) {
  const PropertyList* value = valueAt(dictionary, key);
  if (value == nullptr) return "(missing)";
  return value->text() == nullptr ? "(no text)" : *value->text();
}

TEST(PropertyListTest, FindsTheValueAtAKey) {
  const Dictionary dictionary = {
      {"image-path", "/a.dmg"}, {"images", Array{}}, {"\u00e9", "composed"}, {"", "empty"}};
  const struct {
    std::string_view key;
    std::string_view value;
  } cases[] = {
      {"image-path", "/a.dmg"},      //
      {"images", "(no text)"},       //
      {"", "empty"},                 //
      {"image", "(missing)"},        //
      {"image-paths", "(missing)"},  //
      {"Image-Path", "(missing)"},   //
      {"\u00e9", "composed"},        //
      {"e\u0301", "(missing)"},      //
  };
  for (const auto& [key, value] : cases) EXPECT_EQ(textAt(dictionary, key), value) << key;
}

TEST(PropertyListTest, TheFirstOfTwoEqualKeysCounts) {
  EXPECT_EQ(textAt({{"a", "1"}, {"b", "2"}, {"a", "3"}}, "a"), "1");
}

TEST(PropertyListTest, FindsNothingInAnEmptyDictionary) {
  EXPECT_EQ(valueAt({}, "images"), nullptr);
  EXPECT_EQ(valueAt({}, ""), nullptr);
}

TEST(PropertyListTest, AValueIsOfOneKind) {
  const PropertyList text("a");
  const PropertyList array(Array{"a"});
  const PropertyList dictionary(Dictionary{{"a", "b"}});
  const PropertyList other;
  const auto kinds = [](const PropertyList& value) {
    return std::string(value.text() != nullptr ? "text " : "") +
           (value.array() != nullptr ? "array " : "") +
           (value.dictionary() != nullptr ? "dictionary " : "");
  };
  EXPECT_EQ(kinds(text), "text ");
  EXPECT_EQ(kinds(array), "array ");
  EXPECT_EQ(kinds(dictionary), "dictionary ");
  EXPECT_EQ(kinds(other), "");
}

}  // namespace
}  // namespace launcher
