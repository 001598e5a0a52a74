#include "net/LinkDetector.h"

#include <algorithm>

#include "base/Unicode.h"
#include "net/linux/links/Authority.h"
#include "net/linux/links/HostName.h"
#include "net/linux/links/Link.h"
#include "net/linux/links/Tail.h"
#include "net/linux/links/Traits.h"

// Every link begins with a word, or has one before its "://" or "@". So read the text word by word.
// A word is read at most once more, as part of a link before it, so the time is linear.
namespace launcher {
namespace {

using namespace links;

struct Word {
  std::size_t begin = 0;
  std::size_t end = 0;

  std::u16string_view in(std::u16string_view text) const { return text.substr(begin, end - begin); }
};

Word withoutFullStops(std::u16string_view text, Word word) {
  const std::size_t last = word.in(text).find_last_not_of(u'.');
  return {word.begin, last == std::u16string_view::npos ? word.begin : word.begin + last + 1};
}

/// Finds the scheme at a word's end: a letter, then letters, digits and "+-.". A single letter is a
/// drive, not a scheme.
std::optional<std::size_t> schemeBegin(std::u16string_view text, Word word) {
  std::size_t begin = word.end;
  while (begin > word.begin && has(text[begin - 1], inScheme)) --begin;
  while (begin < word.end && !isAsciiLetter(text[begin])) ++begin;
  if (word.end - begin < 2) return std::nullopt;
  return begin;
}

/// "https://h/a": the word is the scheme.
std::optional<LinkMatch> schemeLink(std::u16string_view text, Word word) {
  const auto begin = schemeBegin(text, word);
  if (!begin) return std::nullopt;
  const auto authority = readAuthority(text, word.end + 3);
  if (!authority) return std::nullopt;
  return matchOf(
      text, {"", *begin, authority->hostBegin, authority->hostEnd, skipTail(text, authority->end)});
}

/// "name@h.com": the word is the name.
std::optional<Link> mailAddress(std::u16string_view text, Word word) {
  const std::size_t begin =
      std::min(word.end, word.begin + word.in(text).find_first_not_of(u"+-."));
  const bool endsWithName = begin < word.end && text[word.end - 1] != u'.';
  if (!endsWithName || !unitIs(text, word.end, u'@')) return std::nullopt;
  const std::size_t domainBegin = word.end + 1;
  const Word domain = withoutFullStops(text, {domainBegin, skip(text, domainBegin, inWord)});
  if (!isBareDomain(domain.in(text))) return std::nullopt;
  return Link{"mailto:", begin, domain.begin, domain.end, domain.end};
}

/// "mailto:name@h.com?subject=s": the word is the scheme.
std::optional<LinkMatch> mailtoLink(std::u16string_view text, Word word) {
  if (asciiLowerCase(utf8(word.in(text))) != "mailto") return std::nullopt;
  const std::size_t nameBegin = word.end + 1;
  const auto address = mailAddress(text, {nameBegin, skip(text, nameBegin, inWord)});
  if (!address || address->begin != nameBegin) return std::nullopt;
  const bool query = unitIs(text, address->end, u'?');
  return matchOf(text, {"", word.begin, address->hostBegin, address->hostEnd,
                        query ? skipTail(text, address->end) : address->end});
}

std::optional<LinkMatch> mailLink(std::u16string_view text, Word word) {
  const auto address = mailAddress(text, word);
  if (!address) return std::nullopt;
  return matchOf(text, *address);
}

/// "h.com:80/a": the word is the host, unless the mark before it makes it part of a path or of an
/// address that we cannot read.
std::optional<LinkMatch> domainLink(std::u16string_view text, Word word) {
  constexpr std::u16string_view kParting = u"/\\:@";
  const bool parted =
      word.begin > 0 && kParting.find(text[word.begin - 1]) != std::u16string_view::npos;
  const Word host = withoutFullStops(text, word);
  if (parted || !isBareDomain(host.in(text))) return std::nullopt;
  return matchOf(text, {"http://", host.begin, host.begin, host.end,
                        skipTail(text, skipPort(text, host.end))});
}

bool isBeforeAuthority(std::u16string_view text, Word word) {
  return text.substr(word.end, 3) == u"://";
}

std::optional<LinkMatch> linkAt(std::u16string_view text, Word word) {
  const std::u16string_view after = text.substr(word.end, 1);
  if (isBeforeAuthority(text, word)) return schemeLink(text, word);
  if (after.starts_with(u'@')) return mailLink(text, word);
  if (after.starts_with(u':')) {
    if (auto match = mailtoLink(text, word)) return match;
  }
  return domainLink(text, word);
}

/// Where the search continues after a word that is no link. A "scheme://" without a link spoils
/// everything up to the next blank: that is part of the same failed address, not a link of its own.
std::size_t endOfRefused(std::u16string_view text, Word word) {
  return isBeforeAuthority(text, word) ? skipToBlank(text, word.end) : word.end;
}

std::optional<LinkMatch> firstLink(std::u16string_view text, std::size_t length) {
  for (std::size_t at = 0; at < length;) {
    const Word word{at, skip(text, at, inWord)};
    if (word.end == at) {
      ++at;
    } else {
      if (auto match = linkAt(text, word)) return match;
      at = endOfRefused(text, word);
    }
  }
  return std::nullopt;
}

class LinkScanner : public LinkDetector {
 public:
  std::optional<LinkMatch> firstMatch(std::u16string_view text, std::size_t length) const override {
    auto match = firstLink(text, std::min(length, text.size()));
    if (!match || match->location + match->length > length) return std::nullopt;
    return match;
  }
};

}  // namespace

std::unique_ptr<LinkDetector> makeLinkDetector() { return std::make_unique<LinkScanner>(); }

}  // namespace launcher
