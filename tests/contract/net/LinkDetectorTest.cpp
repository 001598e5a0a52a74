#include <gtest/gtest.h>

#include <string>

#include "net/AddressChecks.h"
#include "net/LinkDetector.h"
#include "tests/contract/net/FoundLink.h"
#include "tests/contract/net/OnThreads.h"

// What is known of the platform's own detector, and what well-kept detectors agree on.
namespace launcher {
namespace {

using namespace std::string_view_literals;

TEST(LinkDetectorTest, FindsLinksWithAScheme) {
  constexpr LinkCase kCases[] = {
      {"https://server.example", "https://server.example at 0+22"},
      {"http://server.example", "http://server.example at 0+21"},
      {"https://example.com", "https://example.com at 0+19"},
      {"https://example.com/", "https://example.com/ at 0+20"},
      {"https://example.com/a/b.html?q=1&r=2#top",
       "https://example.com/a/b.html?q=1&r=2#top at 0+40"},
      {"https://example.com?q", "https://example.com?q at 0+21"},
      {"https://example.com:8443/x", "https://example.com:8443/x at 0+26"},
      {"http://localhost", "http://localhost at 0+16"},
      {"http://server", "http://server at 0+13"},
      {"https://localhost:8080/?url=https%3a%2f%2flocalhost%3a8080%2fa&b=%7c0",
       "https://localhost:8080/?url=https%3a%2f%2flocalhost%3a8080%2fa&b=%7c0 at 0+69"},
      {"http://10.0.0.1", "http://10.0.0.1 at 0+15"},
      {"ftp://server.example", "ftp://server.example at 0+20"},
      {"ftp://123.156.234.123", "ftp://123.156.234.123 at 0+21"},
      {"httpx://server.example", "httpx://server.example at 0+22"},
      {"fakehttps://www.example.com/item?id=1", "fakehttps://www.example.com/item?id=1 at 0+37"},
      {"HTTPS://Server.Example/A", "HTTPS://Server.Example/A at 0+24"},
  };
  for (const auto& [text, link] : kCases) EXPECT_EQ(foundLink(text), link) << text;
}

TEST(LinkDetectorTest, FindsBareDomainsAndMailAddresses) {
  constexpr LinkCase kCases[] = {
      {"example.com", "http://example.com at 0+11"},
      {"www.example.com", "http://www.example.com at 0+15"},
      {"example.com/a?b#c", "http://example.com/a?b#c at 0+17"},
      {"name@example.com", "mailto:name@example.com at 0+16"},
      {"first.last+tag@mail.example.com", "mailto:first.last+tag@mail.example.com at 0+31"},
  };
  for (const auto& [text, link] : kCases) EXPECT_EQ(foundLink(text), link) << text;
}

TEST(LinkDetectorTest, FindsNoLinkInPlainText) {
  constexpr std::string_view kTexts[] = {
      "",      " ",      "word",    "localhost", "two words",        "://",
      "https", "https:", "https:/", "https://",  "https:// example", "file.qqq",
      "1.5",   "a.",     ".",       "@",         "e.g. this",        "1,234.56",
  };
  for (const std::string_view text : kTexts) EXPECT_EQ(foundLink(text), "none") << text;
}

TEST(LinkDetectorTest, TakesTheFirstOfSeveralLinks) {
  constexpr LinkCase kCases[] = {
      {"https://a.example https://b.example", "https://a.example at 0+17"},
      {"see ftp://a.example or https://b.example", "ftp://a.example at 4+15"},
      {"example.com https://b.example", "http://example.com at 0+11"},
      {"name@example.com https://b.example", "mailto:name@example.com at 0+16"},
  };
  for (const auto& [text, link] : kCases) EXPECT_EQ(foundLink(text), link) << text;
}

TEST(LinkDetectorTest, LeavesTheSurroundingText) {
  constexpr LinkCase kCases[] = {
      {"see https://h.example/a.", "https://h.example/a at 4+19"},
      {" https://h.example", "https://h.example at 1+17"},
      {"https://h.example ", "https://h.example at 0+17"},
      {"https://h.example, then", "https://h.example at 0+17"},
      {"https://h.example/a?", "https://h.example/a at 0+19"},
      {"https://h.example/a!", "https://h.example/a at 0+19"},
      {"https://h.example/a; b", "https://h.example/a at 0+19"},
      {"https://h.example/a: b", "https://h.example/a at 0+19"},
      {"(https://h.example/a)", "https://h.example/a at 1+19"},
      {"(see https://h.example/a).", "https://h.example/a at 5+19"},
      {"https://h.example/a_(b)", "https://h.example/a_(b) at 0+23"},
      {"(https://h.example/a_(b))", "https://h.example/a_(b) at 1+23"},
      {"\"https://h.example/a\"", "https://h.example/a at 1+19"},
      {"<https://h.example/a>", "https://h.example/a at 1+19"},
      {"https://h.example/a\nb", "https://h.example/a at 0+19"},
      {"https://h.example/a\tb", "https://h.example/a at 0+19"},
      {"Write to name@example.com.", "mailto:name@example.com at 9+16"},
      {"at example.com.", "http://example.com at 3+11"},
  };
  for (const auto& [text, link] : kCases) EXPECT_EQ(foundLink(text), link) << text;
}

TEST(LinkDetectorTest, EscapesThePathAndWritesHostsInPunycode) {
  constexpr LinkCase kCases[] = {
      {"https://zh.example.com/wiki/\u7edf\u4e00",
       "https://zh.example.com/wiki/%E7%BB%9F%E4%B8%80 at 0+30"},
      {"http://www.example.com/item?id=1\u4e2d\u6587",
       "http://www.example.com/item?id=1%E4%B8%AD%E6%96%87 at 0+34"},
      {"\u4e2d\u6587http://www.example.com/item?id=1", "http://www.example.com/item?id=1 at 2+32"},
      {"https://b\u00fccher.example/", "https://xn--bcher-kva.example/ at 0+23"},
      {"https://h.example/\U0001f600", "https://h.example/%F0%9F%98%80 at 0+20"},
      {"\U0001f600 https://h.example", "https://h.example at 3+17"},
  };
  for (const auto& [text, link] : kCases) EXPECT_EQ(foundLink(text), link) << text;
}

TEST(LinkDetectorTest, AnIdeographicFullStopIsNoDot) {
  EXPECT_EQ(foundLink("example\u3002com"), "none");
  EXPECT_EQ(foundLink("https://h.example\u3002"), "https://h.example at 0+17");
}

TEST(LinkDetectorTest, SeesOnlyTheGivenLength) {
  constexpr std::u16string_view kText = u"word https://h.example and more";
  EXPECT_EQ(foundLink(kText, 0), "none");
  EXPECT_EQ(foundLink(kText, 4), "none");
  EXPECT_EQ(foundLink(kText, 22), "https://h.example at 5+17");
  EXPECT_EQ(foundLink(kText, kText.size()), "https://h.example at 5+17");
}

TEST(LinkDetectorTest, ALinkThatCrossesTheEndOfTheRangeIsNone) {
  constexpr std::u16string_view kText = u"https://h.example/path https://i";
  EXPECT_EQ(foundLink(kText, 8), "none");
  EXPECT_EQ(foundLink(kText, 17), "none");
  EXPECT_EQ(foundLink(kText, 21), "none");
  EXPECT_EQ(foundLink(kText, 22), "https://h.example/path at 0+22");
  EXPECT_EQ(foundLink(kText, 23), "https://h.example/path at 0+22");
}

struct CheckCase {
  std::string_view text;
  bool valid;
  std::string_view secure;
  std::string_view insecure;
};

std::string checked(std::string_view text, InsecureScheme insecure) {
  const std::optional<Url> url = validURLAddress(text, insecure, *makeLinkDetector());
  return url ? url->absoluteString() : "absent";
}

void expectChecked(const CheckCase& check) {
  EXPECT_EQ(isValidURLAddress(check.text, *makeLinkDetector()), check.valid) << check.text;
  EXPECT_EQ(checked(check.text, InsecureScheme::refused), check.secure) << check.text;
  EXPECT_EQ(checked(check.text, InsecureScheme::allowed), check.insecure) << check.text;
}

TEST(LinkDetectorTest, ServesTheAddressChecks) {
  constexpr CheckCase kCases[] = {
      {"", false, "absent", "absent"},
      {"https://server.example", true, "https://server.example", "https://server.example"},
      {"http://server.example", true, "absent", "http://server.example"},
      {"https://server.example ", false, "https://server.example", "https://server.example"},
      {"at https://server.example", false, "https://server.example", "https://server.example"},
      {"ftp://server.example", false, "absent", "absent"},
      {"ftp://a.example https://b.example", false, "absent", "absent"},
      {"https://a.example https://b.example", false, "https://a.example", "https://a.example"},
      {"httpx://server.example", true, "absent", "absent"},
      {"HTTPS://server.example", false, "absent", "absent"},
      {"example.com", true, "absent", "http://example.com"},
      {"name@example.com", false, "absent", "absent"},
      {"\U0001f600 word https://h.example word", false, "https://h.example", "https://h.example"},
  };
  for (const CheckCase& check : kCases) expectChecked(check);
}

// The range searched has as many units as the text has characters. So each character of two units
// leaves out a unit at the end, and a blank there makes up for one of them.
TEST(LinkDetectorTest, CharactersOfSeveralUnitsShortenTheRange) {
  constexpr CheckCase kCases[] = {
      {"https://h.example/\U0001f600", false, "absent", "absent"},
      {"https://h.example/\U0001f600a", false, "absent", "absent"},
      {"https://h.example/e\u0301", false, "absent", "absent"},
      {"https://h.example/e\u0301a", false, "absent", "absent"},
      {"e\u0301 https://h.example", false, "absent", "absent"},
      {"https://h.example e\u0301", false, "https://h.example", "https://h.example"},
      {"https://h.example/e\u0301 ", true, "https://h.example/e%CC%81",
       "https://h.example/e%CC%81"},
      {"https://h.example/\U0001f600 ", true, "https://h.example/%F0%9F%98%80",
       "https://h.example/%F0%9F%98%80"},
      {"https://h.example/e\u0301  ", false, "https://h.example/e%CC%81",
       "https://h.example/e%CC%81"},
      {"https://h.example/\u00e9", true, "https://h.example/%C3%A9", "https://h.example/%C3%A9"},
  };
  for (const CheckCase& check : kCases) expectChecked(check);
}

TEST(LinkDetectorTest, AnswersSeveralThreadsAtOnce) {
  const auto detector = makeLinkDetector();
  const auto check = [&] {
    constexpr std::u16string_view kText = u"see b\u00fccher.com/\u00e9";
    const auto match = detector->firstMatch(kText, kText.size());
    return match && match->url == Url::parse("http://xn--bcher-kva.com/%C3%A9");
  };
  EXPECT_EQ(successesOnThreads(8, 200, check), 8 * 200);
}

}  // namespace
}  // namespace launcher
