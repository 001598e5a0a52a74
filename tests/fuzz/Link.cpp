// A link lies inside the range that is searched, and depends on nothing behind it.
#include <string>

#include "base/Unicode.h"
#include "net/AddressChecks.h"
#include "net/LinkDetector.h"
#include "tests/fuzz/Fuzzing.h"

using namespace launcher;
using namespace launcher::fuzzing;

static bool same(const std::optional<LinkMatch>& a, const std::optional<LinkMatch>& b) {
  if (!a || !b) return !a && !b;
  return a->url == b->url && a->location == b->location && a->length == b->length;
}

static void checkMatch(const LinkMatch& match, std::size_t length) {
  require(match.length > 0, "a link is not empty");
  require(match.location < length && match.length <= length - match.location,
          "a link lies in the range");
  require(!match.url || Url::parse(match.url->absoluteString()) == match.url,
          "a link's URL is one");
  require(!match.url || match.url->scheme(), "a link's URL has a scheme");
}

static void checkRange(const LinkDetector& detector, std::u16string_view units,
                       std::size_t length) {
  const auto match = detector.firstMatch(units, length);
  if (match) checkMatch(*match, length);
  require(same(match, detector.firstMatch(units, length)), "the same text gives the same link");
}

static void checkAddress(const LinkDetector& detector, std::string_view text) {
  const auto secure = validURLAddress(text, InsecureScheme::refused, detector);
  const auto any = validURLAddress(text, InsecureScheme::allowed, detector);
  require(!secure || secure == any, "what is secure is allowed");
  require(!secure || secure->scheme() == "https", "what is secure has that scheme");
  use(isValidURLAddress(text, detector) ? "valid" : "");
}

FUZZ_TARGET(text) {
  static const auto detector = makeLinkDetector();
  const std::u16string units = utf16(text);
  checkRange(*detector, units, units.size());
  checkRange(*detector, units, units.size() / 2);
  checkAddress(*detector, text);
}
