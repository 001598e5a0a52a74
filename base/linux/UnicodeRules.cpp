#include "base/UnicodeRules.h"

#include <unicode/ubrk.h>
#include <unicode/unorm2.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <memory>

// ICU fails below only if it has no data. The text then stays as it is.
namespace launcher {
namespace {

struct CloseIterator {
  void operator()(UBreakIterator* iterator) const { ubrk_close(iterator); }
};

std::int32_t icuLength(std::u16string_view units) {
  constexpr std::size_t longest = std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(std::min(units.size(), longest));
}

}  // namespace

std::size_t graphemeClusterCount(std::u16string_view units) {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<UBreakIterator, CloseIterator> iterator(
      ubrk_open(UBRK_CHARACTER, "", units.data(), icuLength(units), &status));
  if (U_FAILURE(status)) return units.size();
  std::size_t count = 0;
  while (ubrk_next(iterator.get()) != UBRK_DONE) ++count;
  return count;
}

std::u16string decomposition(std::u16string_view units) {
  UErrorCode status = U_ZERO_ERROR;
  const UNormalizer2* nfd = unorm2_getNFDInstance(&status);
  const std::int32_t needed =
      unorm2_normalize(nfd, units.data(), icuLength(units), nullptr, 0, &status);
  if (status != U_BUFFER_OVERFLOW_ERROR) return std::u16string(units);

  std::u16string result(static_cast<std::size_t>(needed), u'\0');
  status = U_ZERO_ERROR;
  unorm2_normalize(nfd, units.data(), icuLength(units), result.data(), needed, &status);
  return result;
}

}  // namespace launcher
