#pragma once

#include <expat.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "discovery/PropertyList.h"

namespace launcher::fuzzing {

/// A second reader of property lists in XML, slow and plain. It gives a value where the bytes are a
/// well-formed document of the elements that hold texts, arrays and dictionaries; all other
/// elements are `Other`, whatever they contain.
class ExpatReference {
 public:
  static std::optional<PropertyList> read(std::string_view bytes) {
    ExpatReference reference;
    const std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser(XML_ParserCreate(nullptr),
                                                                         XML_ParserFree);
    XML_SetUserData(parser.get(), &reference);
    XML_SetElementHandler(
        parser.get(),
        [](void* self, const XML_Char* name, const XML_Char**) { of(self).begin(name); },
        [](void* self, const XML_Char*) { of(self).end(); });
    XML_SetCharacterDataHandler(parser.get(), [](void* self, const XML_Char* text, int length) {
      of(self).levels_.back().text.append(text, static_cast<std::size_t>(length));
    });
    const XML_Status status =
        XML_Parse(parser.get(), bytes.data(), static_cast<int>(bytes.size()), XML_TRUE);
    if (status != XML_STATUS_OK || !reference.plain_) return std::nullopt;
    return reference.only(reference.levels_.front());
  }

 private:
  /// An element that is open, and what it holds so far.
  struct Level {
    std::string name;
    std::string text;
    std::vector<std::pair<std::string, PropertyList>> items;  ///< element and value
  };

  static ExpatReference& of(void* self) { return *static_cast<ExpatReference*>(self); }

  void begin(const char* name) { levels_.push_back({name, {}, {}}); }

  void end() {
    Level level = std::move(levels_.back());
    levels_.pop_back();
    std::string name = level.name;
    levels_.back().items.emplace_back(std::move(name), valueOf(level));
  }

  PropertyList valueOf(Level& level) {
    if (level.name == "string" || level.name == "key") {
      plain_ = plain_ && level.items.empty();
      return {level.text};
    }
    if (level.name == "array") return arrayOf(level);
    if (level.name == "dict") return dictionaryOf(level);
    if (level.name == "plist") return only(level).value_or(PropertyList());
    plain_ = plain_ && level.items.empty();
    return {};
  }

  PropertyList arrayOf(Level& level) {
    PropertyList::Array array;
    for (auto& [name, value] : level.items) {
      plain_ = plain_ && name != "key" && name != "plist";
      array.push_back(std::move(value));
    }
    return {std::move(array)};
  }

  PropertyList dictionaryOf(Level& level) {
    PropertyList::Dictionary dictionary;
    plain_ = plain_ && level.items.size() % 2 == 0;
    for (std::size_t i = 0; plain_ && i < level.items.size(); i += 2) {
      plain_ = level.items[i].first == "key" && level.items[i + 1].first != "key";
      if (plain_) {
        dictionary.emplace_back(*level.items[i].second.text(),
                                std::move(level.items[i + 1].second));
      }
    }
    return {std::move(dictionary)};
  }

  std::optional<PropertyList> only(Level& level) {
    plain_ = plain_ && level.items.size() == 1 && level.items[0].first != "key";
    return plain_ ? std::optional(std::move(level.items[0].second)) : std::nullopt;
  }

  std::vector<Level> levels_{1};  ///< the first one is the document
  bool plain_ = true;
};

}  // namespace launcher::fuzzing
