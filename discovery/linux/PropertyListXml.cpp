#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "base/Unicode.h"
#include "discovery/linux/PropertyListForms.h"
#include "discovery/linux/XmlEncoding.h"
#include "discovery/linux/XmlLeaves.h"
#include "discovery/linux/XmlMarkup.h"

namespace launcher {
namespace {

/// Whether the bytes are characters that XML knows, apart from numbered ones.
bool isText(std::string_view bytes) {
  const bool lacksControls = std::all_of(bytes.begin(), bytes.end(), [](unsigned char c) {
    return c >= ' ' || c == '\t' || c == '\n' || c == '\r';
  });
  return lacksControls && (isAscii(bytes) || isUtf8(bytes));
}

class XmlReader {
 public:
  explicit XmlReader(std::string_view document) : markup_(document) {}

  /// The value stands alone or, as a rule, in an element of its own.
  PropertyList read() {
    markup_.skipProlog();
    const XmlTag root = markup_.takeTag();
    PropertyList value = root.name == "plist" ? readOnlyValue(root) : readValue(root, 1);
    markup_.takeEpilog();
    return value;
  }

 private:
  PropertyList readOnlyValue(const XmlTag& root) {
    const std::optional<XmlTag> tag = markup_.takeTagIn(root);
    if (!tag) throw UnreadableList("there is no value");
    PropertyList value = readValue(*tag, 1);
    if (markup_.takeTagIn(root)) throw UnreadableList("there is more than one value");
    return value;
  }

  PropertyList readValue(const XmlTag& tag, int depth) {
    checkDepth(depth);
    if (tag.name == "string") return {readText(tag)};
    count(0);
    if (tag.name == "dict") return readDictionary(tag, depth);
    if (tag.name == "array") return readArray(tag, depth);
    checkOther(tag);
    return {};
  }

  std::string readText(const XmlTag& tag) {
    std::string text = markup_.takeTextIn(tag);
    count(text.size());
    if (!isText(text)) throw UnreadableList("a text that is none");
    return text;
  }

  PropertyList readArray(const XmlTag& tag, int depth) {
    PropertyList::Array items;
    while (const auto item = markup_.takeTagIn(tag)) items.push_back(readValue(*item, depth + 1));
    return {std::move(items)};
  }

  PropertyList readDictionary(const XmlTag& tag, int depth) {
    PropertyList::Dictionary dictionary;
    while (const auto keyTag = markup_.takeTagIn(tag)) {
      if (keyTag->name != "key") throw UnreadableList("a value without a key");
      std::string key = readText(*keyTag);
      const auto valueTag = markup_.takeTagIn(tag);
      if (!valueTag) throw UnreadableList("a key without a value");
      dictionary.emplace_back(std::move(key), readValue(*valueTag, depth + 1));
    }
    return {std::move(dictionary)};
  }

  /// Counts a value or a key.
  void count(std::size_t textSize) {
    memory_ += valueMemory(textSize);
    checkMemory(memory_);
  }

  void checkOther(const XmlTag& tag) {
    if (tag.name == "true" || tag.name == "false") {
      markup_.takeNothingIn(tag);
    } else if (tag.closed || !isOther(tag.name, markup_.takeTextIn(tag))) {
      throw UnreadableList("an unknown element, or one with a wrong content");
    }
  }

  static bool isOther(std::string_view name, std::string_view text) {
    if (name == "integer") return isInteger(text);
    if (name == "real") return isReal(text);
    if (name == "date") return isDate(text);
    return name == "data" && isAscii(text);
  }

  XmlMarkup markup_;
  std::size_t memory_ = 0;
};

}  // namespace

PropertyList readXmlPropertyList(std::string_view bytes) {
  std::string converted;
  return XmlReader(inUtf8(bytes, converted)).read();
}

}  // namespace launcher
