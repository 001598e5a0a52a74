#include "net/AddressChecks.h"

#include <arpa/inet.h>

#include <string>

#include "base/Unicode.h"

namespace launcher {
namespace {

struct Search {
  std::optional<LinkMatch> match;
  std::size_t characters = 0;

  std::string scheme() const {
    if (!match || !match->url) return {};
    return match->url->scheme().value_or("");
  }
};

/// Limits the search to as many UTF-16 units as the text has characters.
Search firstLink(std::string_view text, const LinkDetector& detector) {
  const std::size_t characters = characterCount(text);
  return {detector.firstMatch(utf16(text), characters), characters};
}

bool isNumericAddress(int family, std::string_view text) {
  in6_addr buffer{};
  return inet_pton(family, std::string(text).c_str(), &buffer) == 1;
}

}  // namespace

bool isValidURLAddress(std::string_view text, const LinkDetector& detector) {
  const Search search = firstLink(text, detector);
  return search.match && search.scheme().starts_with("http") &&
         search.match->length == search.characters;
}

std::optional<Url> validURLAddress(std::string_view text, InsecureScheme insecure,
                                   const LinkDetector& detector) {
  const Search search = firstLink(text, detector);
  const std::string scheme = search.scheme();
  const bool accepted =
      scheme == "https" || (scheme == "http" && insecure == InsecureScheme::allowed);
  return accepted ? search.match->url : std::nullopt;
}

bool validIPAddress(std::string_view text) {
  return isNumericAddress(AF_INET6, text) || isNumericAddress(AF_INET, text);
}

}  // namespace launcher
