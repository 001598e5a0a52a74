#pragma once

#include <plist/plist.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "base/Unicode.h"
#include "discovery/PropertyList.h"

namespace launcher::fuzzing {

/// A second reader of property lists in binary form, with ways of its own: it cuts texts at a NUL,
/// drops halves of characters and keys that come again, takes sets for arrays, and leaves bytes
/// that are no ASCII as they are. There it is not asked, or anything counts as agreement. It does
/// not survive every list, so ask it only about one that was read already.
class PlistReference {
 public:
  /// Whether it sees the value in the bytes, too.
  static bool agrees(std::string_view bytes, const PropertyList& value) {
    if (!isPlain(value)) return true;
    plist_t root = nullptr;
    plist_from_bin(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &root);
    const std::unique_ptr<void, void (*)(plist_t)> owner(root, plist_free);
    return root == nullptr || agree(value, valueOf(root));
  }

 private:
  /// Whether no text holds a NUL or a replaced character, and every key is there once.
  static bool isPlain(const PropertyList& value) {
    if (const auto* text = value.text()) return isPlainText(*text);
    if (const auto* array = value.array()) return std::ranges::all_of(*array, isPlain);
    if (value.dictionary() == nullptr) return true;
    std::set<std::string_view> keys;
    return std::ranges::all_of(*value.dictionary(), [&keys](const auto& entry) {
      return keys.insert(entry.first).second && isPlainText(entry.first) && isPlain(entry.second);
    });
  }

  static bool isPlainText(std::string_view text) {
    return text.find('\0') == std::string_view::npos &&
           text.find("\ufffd") == std::string_view::npos;
  }

  static bool agree(const PropertyList& value, const PropertyList& second) {
    if (value == PropertyList()) return true;
    if (value.array() != nullptr && second.array() != nullptr) {
      return std::ranges::equal(*value.array(), *second.array(), agree);
    }
    if (value.dictionary() != nullptr && second.dictionary() != nullptr) {
      return std::ranges::equal(*value.dictionary(), *second.dictionary(), agreeOnEntry);
    }
    if (value.text() == nullptr || second.text() == nullptr) return false;
    return agreeOnText(*value.text(), *second.text());
  }

  static bool agreeOnEntry(const std::pair<std::string, PropertyList>& entry,
                           const std::pair<std::string, PropertyList>& second) {
    return agreeOnText(entry.first, second.first) && agree(entry.second, second.second);
  }

  static bool agreeOnText(const std::string& text, const std::string& second) {
    return text == second || !isAscii(second);
  }

  static PropertyList valueOf(plist_t node) {
    switch (plist_get_node_type(node)) {
      case PLIST_STRING:
        return {textOf(node)};
      case PLIST_ARRAY:
        return arrayOf(node);
      case PLIST_DICT:
        return dictionaryOf(node);
      default:
        return {};
    }
  }

  static std::string textOf(plist_t node) {
    std::uint64_t size = 0;
    const char* text = plist_get_string_ptr(node, &size);
    return {text, size};
  }

  static PropertyList arrayOf(plist_t node) {
    PropertyList::Array array;
    for (std::uint32_t i = 0; i < plist_array_get_size(node); ++i) {
      array.push_back(valueOf(plist_array_get_item(node, i)));
    }
    return {std::move(array)};
  }

  static PropertyList dictionaryOf(plist_t node) {
    PropertyList::Dictionary dictionary;
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(node, &iterator);
    for (;;) {
      char* key = nullptr;
      plist_t value = nullptr;
      plist_dict_next_item(node, iterator, &key, &value);
      if (value == nullptr) break;
      dictionary.emplace_back(key, valueOf(value));
      std::free(key);
    }
    std::free(iterator);
    return {std::move(dictionary)};
  }
};

}  // namespace launcher::fuzzing
