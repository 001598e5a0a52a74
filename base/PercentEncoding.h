#pragma once

#include <algorithm>
#include <array>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

/// Escapes such as "%2F", and sets of bytes that need no escape. No state; any thread.
namespace launcher {

/// A set of bytes with a look-up in constant time.
class ByteSet {
 public:
  constexpr ByteSet(std::initializer_list<std::string_view> groups) {
    for (const std::string_view group : groups) {
      for (const char byte : group) members_[static_cast<unsigned char>(byte)] = true;
    }
  }

  constexpr bool holds(char byte) const { return members_[static_cast<unsigned char>(byte)]; }

  /// Whether the set holds every byte of a text.
  constexpr bool holdsAll(std::string_view text) const {
    return std::all_of(text.begin(), text.end(), [this](char byte) { return holds(byte); });
  }

 private:
  std::array<bool, 256> members_{};
};

inline constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
inline constexpr std::string_view kDigits = "0123456789";
inline constexpr std::string_view kHexDigits = "0123456789ABCDEFabcdef";

/// The byte that the escape at the text's beginning stands for: "%" and two hexadecimal digits.
/// Absent if there is none.
std::optional<char> leadingEscape(std::string_view text);

/// The text with every byte outside `kept` escaped.
///
///     escaped("a b", {"ab"})   -> "a%20b"
std::string escaped(std::string_view text, const ByteSet& kept);

/// The same, but keeps the escapes that the text already has.
///
///     escapedKeepingEscapes("a b%20%", {"ab"})   -> "a%20b%20%25"
std::string escapedKeepingEscapes(std::string_view text, const ByteSet& kept);

/// Whether the text consists of escapes and bytes of `kept`.
bool isEscaped(std::string_view text, const ByteSet& kept);

/// The text with its escapes decoded. A "%" that begins no escape stays.
///
///     unescaped("a%20b")   -> "a b"
std::string unescaped(std::string_view text);

}  // namespace launcher
