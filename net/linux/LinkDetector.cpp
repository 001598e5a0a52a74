#include "net/LinkDetector.h"

#include <algorithm>

#include "base/Unicode.h"
#include "net/linux/links/Address.h"
#include "net/linux/links/Characters.h"
#include "net/linux/links/HostName.h"
#include "net/linux/links/Link.h"

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

Word wordAt(std::u16string_view text, std::size_t at) { return {at, skip(text, at, kInWord)}; }

Word withoutFullStops(std::u16string_view text, Word word) {
  return {word.begin, word.begin + word.in(text).find_last_not_of(u'.') + 1};
}

bool isBeforeAuthority(std::u16string_view text, Word word) {
  return text.substr(word.end, 3) == u"://";
}

/// "https://h/a": the word ends with the scheme, which is a letter, then letters, digits and "+-.".
/// A single letter is a drive, not a scheme.
std::optional<Link> schemeLink(std::u16string_view text, Word word) {
  std::size_t begin = word.end;
  while (begin > word.begin && holds(kInScheme, text[begin - 1])) --begin;
  while (begin < word.end && !u_isalpha(text[begin])) ++begin;
  if (word.end - begin < 2) return std::nullopt;
  auto link = readAddress(text, word.end + 3);
  if (link) link->begin = begin;
  return link;
}

/// "name@h.com": the word is the name.
std::optional<Link> mailLink(std::u16string_view text, Word word) {
  const std::u16string_view name = word.in(text);
  const std::size_t begin = word.begin + std::min(name.size(), name.find_first_not_of(u"+-."));
  const bool endsWithName = begin < word.end && !name.ends_with(u'.');
  if (!endsWithName || !unitIs(text, word.end, u'@')) return std::nullopt;
  const Word domain = withoutFullStops(text, wordAt(text, word.end + 1));
  if (!isBareDomain(domain.in(text))) return std::nullopt;
  return Link{"mailto:", begin, domain.begin, domain.end, domain.end};
}

/// "mailto:name@h.com?subject=s": the word is the scheme.
std::optional<Link> mailtoLink(std::u16string_view text, Word word) {
  if (asciiLowerCase(utf8(word.in(text))) != "mailto") return std::nullopt;
  auto link = mailLink(text, wordAt(text, word.end + 1));
  if (!link || link->begin != word.end + 1) return std::nullopt;
  const bool query = unitIs(text, link->end, u'?');
  link->scheme = "";
  link->begin = word.begin;
  if (query) link->end = skipPortAndTail(text, link->end);
  return link;
}

/// "h.com:80/a": the word is the host, unless the mark before it makes it part of a path or of an
/// address that we cannot read.
std::optional<Link> domainLink(std::u16string_view text, Word word) {
  constexpr std::u16string_view kParting = u"/\\:@";
  const bool parted =
      word.begin > 0 && kParting.find(text[word.begin - 1]) != std::u16string_view::npos;
  const Word host = withoutFullStops(text, word);
  if (parted || !isBareDomain(host.in(text))) return std::nullopt;
  return Link{"http://", host.begin, host.begin, host.end, skipPortAndTail(text, host.end)};
}

std::optional<Link> linkAt(std::u16string_view text, Word word) {
  if (isBeforeAuthority(text, word)) return schemeLink(text, word);
  if (unitIs(text, word.end, u'@')) return mailLink(text, word);
  if (unitIs(text, word.end, u':')) {
    if (auto link = mailtoLink(text, word)) return link;
  }
  return domainLink(text, word);
}

/// Where the search continues after a word that is no link. A "scheme://" without a link spoils
/// everything up to the next blank: that is part of the same failed address, not a link of its own.
std::size_t endOfRefused(std::u16string_view text, Word word) {
  // Every blank and control is a single unit.
  const auto isBlank = [](char16_t unit) { return u_isUWhiteSpace(unit) || u_iscntrl(unit); };
  std::size_t end = word.end;
  while (isBeforeAuthority(text, word) && end < text.size() && !isBlank(text[end])) ++end;
  return end;
}

std::optional<LinkMatch> firstLink(std::u16string_view text, std::size_t length) {
  for (std::size_t at = 0; at < length;) {
    const Word word = wordAt(text, at);
    if (word.end == at) {
      ++at;
      continue;
    }
    const auto link = linkAt(text, word);
    if (auto match = link ? matchOf(text, *link) : std::nullopt) return match;
    at = endOfRefused(text, word);
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
