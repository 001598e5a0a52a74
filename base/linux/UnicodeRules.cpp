#include "base/UnicodeRules.h"

#include <unicode/brkiter.h>
#include <unicode/normalizer2.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <memory>

// ICU fails below only if it has no data. The text then stays as it is.
namespace launcher {
namespace {

/// Refers to the units and does not copy them.
icu::UnicodeString icuText(std::u16string_view units) {
  constexpr std::size_t kLongest = std::numeric_limits<std::int32_t>::max();
  return {false, units.data(), static_cast<std::int32_t>(std::min(units.size(), kLongest))};
}

}  // namespace

std::size_t graphemeClusterCount(std::u16string_view units) {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::BreakIterator> iterator(
      icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
  if (U_FAILURE(status)) return units.size();
  const icu::UnicodeString text = icuText(units);  // the iterator refers to it
  iterator->setText(text);
  std::size_t count = 0;
  while (iterator->next() != icu::BreakIterator::DONE) ++count;
  return count;
}

std::u16string decomposition(std::u16string_view units) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::Normalizer2* nfd = icu::Normalizer2::getNFDInstance(status);
  if (U_FAILURE(status)) return std::u16string(units);
  const icu::UnicodeString result = nfd->normalize(icuText(units), status);
  return {result.getBuffer(), static_cast<std::size_t>(result.length())};
}

}  // namespace launcher
