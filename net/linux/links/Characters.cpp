#include "net/linux/links/Characters.h"

#include <unicode/utf16.h>

namespace launcher::links {
namespace {

/// A joiner counts as a mark, and what stands for no character as a control.
std::uint32_t categoryOf(UChar32 point) {
  constexpr UChar32 kNonJoiner = 0x200C;
  constexpr UChar32 kJoiner = 0x200D;
  constexpr UChar32 kObject = 0xFFFC;
  constexpr UChar32 kReplacement = 0xFFFD;
  if (point == kNonJoiner || point == kJoiner) return U_GC_MN_MASK;
  if (point == kObject || point == kReplacement || U_IS_UNICODE_NONCHAR(point)) return U_GC_CC_MASK;
  return U_GET_GC_MASK(point);
}

}  // namespace

UChar32 takeCodePoint(std::u16string_view text, std::size_t& at) {
  if (text[at] < 0x80) return text[at++];
  UChar32 point = 0;
  U16_NEXT(text, at, text.size(), point);
  return point;
}

bool holds(const CharacterSet& set, UChar32 point) {
  if (point < 0x80) return set.ascii.holds(static_cast<char>(point));
  return (set.categories & categoryOf(point)) != 0;
}

std::size_t skip(std::u16string_view text, std::size_t at, const CharacterSet& set) {
  std::size_t next = at;
  while (next < text.size() && holds(set, takeCodePoint(text, next))) at = next;
  return at;
}

}  // namespace launcher::links
