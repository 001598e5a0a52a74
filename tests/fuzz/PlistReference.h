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

/// A second reader of property lists in binary form. It differs in known ways: it cuts texts at a
/// NUL, drops halves of characters and repeated keys, takes sets for arrays, and leaves bytes
/// outside ASCII as they are. In these cases it is not asked, or any answer counts as agreement.
/// Some lists crash it, so ask it only about a list that was read already.
class PlistReference {
 public:
  /// Whether it reads the same value from the bytes.
  static bool agrees(std::string_view bytes, const PropertyList& value) {
    if (!isPlain(value)) return true;
    plist_t root = nullptr;
    plist_from_bin(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &root);
    const std::unique_ptr<void, void (*)(plist_t)> owner(root, plist_free);
    return root == nullptr || agree(value, root);
  }

 private:
  /// Whether no text holds a NUL or a replaced character, and no key comes twice.
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

  /// Skips values that mean nothing to us: some of them crash the library.
  static bool agree(const PropertyList& value, plist_t node) {
    if (const auto* text = value.text()) return agreeOnText(*text, node);
    if (const auto* array = value.array()) return agreeOnArray(*array, node);
    if (const auto* dictionary = value.dictionary()) return agreeOnDictionary(*dictionary, node);
    return true;
  }

  static bool agreeOnText(const std::string& text, plist_t node) {
    if (plist_get_node_type(node) != PLIST_STRING) return false;
    std::uint64_t size = 0;
    const char* second = plist_get_string_ptr(node, &size);
    return isSame(text, {second, size});
  }

  static bool isSame(const std::string& text, std::string_view second) {
    return text == second || !isAscii(second);
  }

  static bool agreeOnArray(const PropertyList::Array& array, plist_t node) {
    if (plist_get_node_type(node) != PLIST_ARRAY) return false;
    if (plist_array_get_size(node) != array.size()) return false;
    std::uint32_t index = 0;
    return std::ranges::all_of(array, [&](const PropertyList& item) {
      return agree(item, plist_array_get_item(node, index++));
    });
  }

  static bool agreeOnDictionary(const PropertyList::Dictionary& dictionary, plist_t node) {
    if (plist_get_node_type(node) != PLIST_DICT) return false;
    if (plist_dict_get_size(node) != dictionary.size()) return false;
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(node, &iterator);
    const std::unique_ptr<void, void (*)(void*)> owner(iterator, std::free);
    return std::ranges::all_of(dictionary, [&](const auto& entry) {
      char* key = nullptr;
      plist_t item = nullptr;
      plist_dict_next_item(node, iterator, &key, &item);
      const std::unique_ptr<char, void (*)(void*)> keyOwner(key, std::free);
      return isSame(entry.first, key) && agree(entry.second, item);
    });
  }
};

}  // namespace launcher::fuzzing
