#include <gtest/gtest.h>

#include <string>

#include "net/AddressChecks.h"
#include "net/LinkDetector.h"
#include "tests/contract/net/FoundLink.h"

// What our detector decides where the platform's behaviour is unknown.
namespace launcher {
namespace {

using namespace std::string_view_literals;

std::string repeated(std::string_view text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

TEST(LinkDetectorLinuxTest, ReadsSchemes) {
  constexpr LinkCase kCases[] = {
      {"svn+ssh://h", "svn+ssh://h at 0+11"},
      {"x-a.b://h", "x-a.b://h at 0+9"},
      {"1http://h", "http://h at 1+8"},
      {"-http://h", "http://h at 1+8"},
      {"_http://h", "http://h at 1+8"},
      {"\u00e9http://h", "http://h at 1+8"},
      {"(http://h)", "http://h at 1+8"},
      {"='http://h'", "http://h at 2+8"},
      {"C://folder", "none"},
      {"1://h", "none"},
      {"://h.com", "none"},
      {"https:h.com", "none"},
      {"https:/h.com", "none"},
      {"a/http://h", "http://h at 2+8"},
      {"javascript:http://h", "http://h at 11+8"},
      {"file:///a", "none"},
  };
  for (const auto& [text, link] : kCases) EXPECT_EQ(foundLink(text), link) << text;
}

TEST(LinkDetectorLinuxTest, ReadsHosts) {
  constexpr LinkCase kCases[] = {
      {"https://[::1]:8443/x", "https://[::1]:8443/x at 0+20"},
      {"https://[2001:db8::1]", "https://[2001:db8::1] at 0+21"},
      {"https://[::ffff:10.0.0.5]/", "https://[::ffff:10.0.0.5]/ at 0+26"},
      {"https://[::1", "none"},
      {"https://[]", "none"},
      {"https://[::1::]", "none"},
      {"https://[10.0.0.1]", "none"},
      {"https://[::\u0131]", "none"},
      {"https://a_b.example", "https://a_b.example at 0+19"},
      {"https://a-.example", "https://a-.example at 0+18"},
      {"https://a%2Eb/", "https://a%2Eb/ at 0+14"},
      {"https://a%6Fb%6f/", "https://a%6Fb%6f/ at 0+17"},
      {"https://a%b/", "https://a at 0+9"},
      {"https://h./x", "https://h./x at 0+12"},
      {"https://h.:80", "https://h.:80 at 0+13"},
      {"https://h.", "https://h at 0+9"},
      {"https://h.?", "https://h at 0+9"},
      {"https://h..i", "https://h at 0+9"},
      {"https://.h", "none"},
      {"https:///h", "none"},
      {"https://?q", "none"},
      {"https://,", "none"},
      {"https://u:p@h.example/", "https://u:p@h.example/ at 0+22"},
      {"https://u@v@h/", "https://u%40v@h/ at 0+14"},
      {"https://@h/", "https://@h/ at 0+11"},
      {"https://u@/", "none"},
      {"https://\u00fc@h/", "https://%C3%BC@h/ at 0+12"},
      {"https://50%@h/", "https://50%25@h/ at 0+14"},
  };
  for (const auto& [text, link] : kCases) EXPECT_EQ(foundLink(text), link) << text;
}

TEST(LinkDetectorLinuxTest, ASchemeWithoutAHostSpoilsTheTextUpToTheNextBlank) {
  constexpr LinkCase kCases[] = {
      {"https://[::1,h.com", "none"},
      {"https://,h.com", "none"},
      {"https://\"h.com\"", "none"},
      {"https://[(a@h.com)", "none"},
      {"https:///http://h.com", "none"},
      {"C://h.com,i.com", "none"},
      {"https://[::1 h.com", "http://h.com at 13+5"},
      {"https://,\nh.com", "http://h.com at 10+5"},
      {"https://,\u00a0h.com", "http://h.com at 10+5"},
      {"https://,\u3000h.com", "http://h.com at 10+5"},
  };
  for (const auto& [text, link] : kCases) EXPECT_EQ(foundLink(text), link) << text;
}

TEST(LinkDetectorLinuxTest, ReadsPorts) {
  constexpr LinkCase kCases[] = {
      {"https://h:80", "https://h:80 at 0+12"},
      {"https://h:8/x", "https://h:8/x at 0+13"},
      {"https://h:80.", "https://h:80 at 0+12"},
      {"https://h:", "https://h at 0+9"},
      {"https://h:/x", "https://h at 0+9"},
      {"https://h:x", "https://h at 0+9"},
      {"https://h:65535/x", "https://h:65535/x at 0+17"},
      {"https://h:123456/x", "https://h at 0+9"},
      {"https://h:80:90", "https://h:80 at 0+12"},
      {"h.com:80/x", "http://h.com:80/x at 0+10"},
      {"h.com: x", "http://h.com at 0+5"},
      {"h.com:x", "http://h.com at 0+5"},
  };
  for (const auto& [text, link] : kCases) EXPECT_EQ(foundLink(text), link) << text;
}

TEST(LinkDetectorLinuxTest, BareDomainsNeedAKnownTopLevelDomain) {
  constexpr LinkCase kCases[] = {
      {"a.com", "http://a.com at 0+5"},
      {"A.COM", "http://A.COM at 0+5"},
      {"a.b.co.uk", "http://a.b.co.uk at 0+9"},
      {"a.museum", "http://a.museum at 0+8"},
      {"a.ck", "http://a.ck at 0+4"},
      {"a.za", "http://a.za at 0+4"},
      {"vorx.co.za:8443/path", "http://vorx.co.za:8443/path at 0+20"},
      {"a.xn--fiqs8s", "http://a.xn--fiqs8s at 0+12"},
      {"a.arpa", "http://a.arpa at 0+6"},
      {"a.zone", "http://a.zone at 0+6"},
      {"a.aaa", "http://a.aaa at 0+5"},
      {"a.github.io", "http://a.github.io at 0+11"},
      {"example.test", "none"},
      {"server.example", "none"},
      {"server.local", "none"},
      {"a.c0m", "none"},
      {"com", "none"},
      {".com", "none"},
      {"a..com", "none"},
      {"-a.com", "none"},
      {"a-.com", "none"},
      {"a.com-", "none"},
      {"a_b.com", "none"},
      {"a+b.com", "none"},
      {"10.0.0.1", "none"},
      {"10.0.0.1:80/x", "none"},
      {"www.example", "none"},
      {"www.server.example", "http://www.server.example at 0+18"},
      {"WWW.server.example", "http://WWW.server.example at 0+18"},
      {"wwww.server.example", "none"},
      {"www..example", "none"},
      {"xn--bcher-kva.xn--p1ai", "http://xn--bcher-kva.xn--p1ai at 0+22"},
      {"a.com...", "http://a.com at 0+5"},
      {"a.com's", "http://a.com at 0+5"},
      {"a.com,b.com", "http://a.com at 0+5"},
      {"/usr/lib/a.so", "none"},
      {"\\\\a.com", "none"},
      {"x:a.com", "none"},
      {"@a.com", "none"},
      {"a.com@", "none"},
      {"=a.com", "http://a.com at 1+5"},
      {"a.com?", "http://a.com at 0+5"},
      {"a.com./x", "http://a.com at 0+5"},
  };
  for (const auto& [text, link] : kCases) EXPECT_EQ(foundLink(text), link) << text;
}

TEST(LinkDetectorLinuxTest, BareDomainsKeepTheLimitsOfNames) {
  const std::string label(63, 'a');
  const std::string longest = label + "." + label + "." + label + "." + std::string(57, 'a');
  EXPECT_EQ(foundLink(label + ".com"), "http://" + label + ".com at 0+67");
  EXPECT_EQ(foundLink(label + "a.com"), "none");
  EXPECT_EQ(foundLink(longest + ".com"), "http://" + longest + ".com at 0+253");
  EXPECT_EQ(foundLink(longest + "a.com"), "none");
}

TEST(LinkDetectorLinuxTest, ReadsInternationalNames) {
  constexpr LinkCase kCases[] = {
      {"b\u00fccher.com", "http://xn--bcher-kva.com at 0+10"},
      {"B\u00dcCHER.com", "http://xn--bcher-kva.com at 0+10"},
      {"bu\u0308cher.com", "http://xn--bcher-kva.com at 0+11"},
      {"fa\u00df.com", "http://xn--fa-hia.com at 0+7"},
      {"\u0440\u0444.\u0440\u0444", "http://xn--p1ai.xn--p1ai at 0+5"},
      {"\u4e2d\u6587.\u4e2d\u56fd/a", "http://xn--fiq228c.xn--fiqs8s/a at 0+7"},
      {"i\u2764.ws", "http://xn--i-7iq.ws at 0+5"},
      {"\U0001f4a9.la", "http://xn--ls8h.la at 0+5"},
      {"\uff45\uff58.com", "http://ex.com at 0+6"},
      {"\uff11\uff10.com", "http://10.com at 0+6"},
      {"b\u00fccher.example", "none"},
      {"https://b\u00fccher/", "https://xn--bcher-kva/ at 0+15"},
      {"https://\u00fc:p@b\u00fccher:80/\u00fc",
       "https://%C3%BC:p@xn--bcher-kva:80/%C3%BC at 0+23"},
      {"name@b\u00fccher.com", "mailto:name@xn--bcher-kva.com at 0+15"},
      {"n\u00e4me@a.com", "mailto:n%C3%A4me@a.com at 0+10"},
      {"https://\u2100.com", "none"},
      {"\u2100.com", "none"},
      {"https://a\u0308\u0308-xn--\u05d0.com", "none"},
  };
  for (const auto& [text, link] : kCases) EXPECT_EQ(foundLink(text), link) << text;
}

TEST(LinkDetectorLinuxTest, LongInternationalNamesAreNone) {
  EXPECT_EQ(foundLink(repeated("\u00fc.", 31) + "com").substr(0, 18), "http://xn--tda.xn-");
  EXPECT_EQ(foundLink(repeated("\u00fc.", 32) + "com"), "none");
  EXPECT_EQ(foundLink("https://" + repeated("\u00fc", 50)).substr(0, 12), "https://xn--");
  EXPECT_EQ(foundLink("https://" + repeated("\u00fc", 70)), "none");
}

// One label of a million letters, no two neighbours alike. The conversion to Punycode takes longest
// for it.
TEST(LinkDetectorLinuxTest, HostileInternationalNamesTakeLinearTime) {
  std::u16string text = u"https://";
  for (int i = 0; i < 1'000'000; ++i) text.push_back(static_cast<char16_t>(0x9FFF - i % 20'000));
  EXPECT_EQ(foundLink(text, text.size()), "none");
}

TEST(LinkDetectorLinuxTest, ReadsMailAddresses) {
  constexpr LinkCase kCases[] = {
      {"a_b-c.d+e@a.com", "mailto:a_b-c.d+e@a.com at 0+15"},
      {".a@a.com", "mailto:a@a.com at 1+7"},
      {"--a@a.com", "mailto:a@a.com at 2+7"},
      {"a.@a.com", "none"},
      {".@a.com", "none"},
      {"-@a.com", "none"},
      {"x -@a.com", "none"},
      {"@a.com", "none"},
      {"a@", "none"},
      {"a@b", "none"},
      {"a@localhost", "none"},
      {"a@a.qqq", "none"},
      {"a@10.0.0.1", "none"},
      {"a@a.com?b", "mailto:a@a.com at 0+7"},
      {"a@a.com/b", "mailto:a@a.com at 0+7"},
      {"a@b.com@c.com", "mailto:a@b.com at 0+7"},
      {"a@b@c.com", "mailto:b@c.com at 2+7"},
      {"a@.com", "none"},
      {"mailto:a@a.com", "mailto:a@a.com at 0+14"},
      {"MailTo:a@a.com", "MailTo:a@a.com at 0+14"},
      {"mailto:a@a.com?subject=b&cc=c.", "mailto:a@a.com?subject=b&cc=c at 0+29"},
      {"mailto:a@a.com/b", "mailto:a@a.com at 0+14"},
      {"mailto:a", "none"},
      {"mailto:", "none"},
      {"mailto: a@a.com", "mailto:a@a.com at 8+7"},
      {"xmailto:a@a.com", "mailto:a@a.com at 8+7"},
      {"mailto:.a@a.com", "mailto:a@a.com at 8+7"},
  };
  for (const auto& [text, link] : kCases) EXPECT_EQ(foundLink(text), link) << text;
}

TEST(LinkDetectorLinuxTest, EndsLinks) {
  constexpr LinkCase kCases[] = {
      {"http://h/a...", "http://h/a at 0+10"},
      {"http://h/a?!.,;:'", "http://h/a at 0+10"},
      {"http://h/a.b", "http://h/a.b at 0+12"},
      {"http://h/?", "http://h/ at 0+9"},
      {"http://h?", "http://h at 0+8"},
      {"http://h#", "http://h# at 0+9"},
      {"http://h/a(", "http://h/a at 0+10"},
      {"http://h/a(b", "http://h/a(b at 0+12"},
      {"http://h/a(b.)", "http://h/a(b.) at 0+14"},
      {"http://h/a)b", "http://h/a at 0+10"},
      {"http://h/a[]=1", "http://h/a%5B%5D=1 at 0+14"},
      {"[http://h/a]", "http://h/a at 1+10"},
      {"http://h/([)]", "http://h/(%5B)%5D at 0+13"},
      {"http://h/a\\b", "http://h/a at 0+10"},
      {"http://h/a^b", "http://h/a at 0+10"},
      {"http://h/a`b", "http://h/a at 0+10"},
      {"http://h/{a}", "http://h/ at 0+9"},
      {"http://h/a|b", "http://h/a at 0+10"},
      {"http://h/a\x7f", "http://h/a at 0+10"},
      {"http://h/a\0b"sv, "http://h/a at 0+10"},
      {"http://h/a\u00a0b", "http://h/a at 0+10"},
      {"http://h/a\u0085b", "http://h/a at 0+10"},
      {"http://h/a\u2028b", "http://h/a at 0+10"},
      {"http://h/a\u3000b", "http://h/a at 0+10"},
      {"http://h/a\u200eb", "http://h/a at 0+10"},
      {"http://h/a\u202eb\u202c", "http://h/a at 0+10"},
      {"http://h/a\u00adb", "http://h/a at 0+10"},
      {"http://h/a\ufeffb", "http://h/a at 0+10"},
      {"http://h/a\ufffcb", "http://h/a at 0+10"},
      {"http://h/a\xff", "http://h/a at 0+10"},
      {"http://h/a\uffffb", "http://h/a at 0+10"},
      {"http://h/\u00e9\u3002", "http://h/%C3%A9 at 0+10"},
      {"http://h/\u00e9\u3002\u00e9", "http://h/%C3%A9%E3%80%82%C3%A9 at 0+12"},
      {"\u201chttp://h/a\u201d", "http://h/a at 1+10"},
      {"http://h/a\u2026", "http://h/a at 0+10"},
      {"http://h/\u20ac", "http://h/%E2%82%AC at 0+10"},
      {"http://h/\u2260", "http://h/%E2%89%A0 at 0+10"},
      {"http://h/\U0001f469\u200d\U0001f467", "http://h/%F0%9F%91%A9%E2%80%8D%F0%9F%91%A7 at 0+14"},
      {"http://h/%41%zz%", "http://h/%41%25zz%25 at 0+16"},
      {"http://h/#a#b", "http://h/#a%23b at 0+13"},
      {"http://h/?a?b/c:d@e", "http://h/?a?b/c:d@e at 0+19"},
  };
  for (const auto& [text, link] : kCases) {
    EXPECT_EQ(foundLink(text), link) << testing::PrintToString(text);
  }
}

TEST(LinkDetectorLinuxTest, LoneSurrogatesEndLinks) {
  std::u16string text = u"http://h/a?b";
  text[10] = 0xD83D;
  EXPECT_EQ(foundLink(text, text.size()), "http://h/a at 0+10");
  text[10] = 0xDE00;
  EXPECT_EQ(foundLink(text, text.size()), "http://h/a at 0+10");
}

TEST(LinkDetectorLinuxTest, ALetterThatMacosCountsAsTwoLimitsTheRange) {
  EXPECT_FALSE(isValidURLAddress("https://h.example/\u0e2a\u0e33", *makeLinkDetector()));
  EXPECT_TRUE(isValidURLAddress("https://h.example/\u0e2a", *makeLinkDetector()));
}

TEST(LinkDetectorLinuxTest, ALengthBeyondTheTextIsTheTexts) {
  EXPECT_EQ(foundLink(u"http://h", 1000), "http://h at 0+8");
}

TEST(LinkDetectorLinuxTest, ReadsLongLinks) {
  const std::string many(1'000'000, 'a');
  EXPECT_EQ(foundLink("https://" + many), "https://" + many + " at 0+1000008");
  EXPECT_EQ(foundLink("https://h/" + many), "https://h/" + many + " at 0+1000010");
  EXPECT_EQ(foundLink("https://" + many + "@h"), "https://" + many + "@h at 0+1000010");
  EXPECT_EQ(foundLink(many), "none");
  EXPECT_EQ(foundLink(many + "://"), "none");
}

// For each of these texts, some finder took a time that grows with the square of the length. Here
// that would be a minute or more.
TEST(LinkDetectorLinuxTest, HostileTextsTakeLinearTime) {
  constexpr LinkCase kCases[] = {
      {"a.", "none"},
      {"a-", "none"},
      {"1.", "none"},
      {"@", "none"},
      {"a@", "none"},
      {"a@b.", "none"},
      {"a.b@", "none"},
      {"://", "none"},
      {"aa://", "aa://aa"},
      {"aa://!", "none"},
      {"aa://@", "aa://@aa"},
      {"aa://[", "none"},
      {"aa://[:", "none"},
      {"aa://.", "none"},
      {"(", "none"},
      {")", "none"},
      {"mailto:", "none"},
      {"mailto:a@", "none"},
      {"aa:", "none"},
      {"www.a_", "none"},
      {"www.", "none"},
      {"\u00fc.", "none"},
      {"\u00fc@", "none"},
      {"%", "none"},
      {"a.zz ", "none"},
      {"\u00fc.zz ", "none"},
      {"a@\u00fc.zz ", "none"},
      {"aa://\u2100 ", "none"},
  };
  for (const auto& [text, link] : kCases) {
    EXPECT_EQ(foundLink(repeated(text, 100'000)).substr(0, link.size()), link) << text;
  }
}

TEST(LinkDetectorLinuxTest, HostileTailsTakeLinearTime) {
  constexpr LinkCase kCases[] = {
      {")", "http://a.com/ at 0+13"},      {"(", "http://a.com/ at 0+13"},
      {".", "http://a.com/ at 0+13"},      {"]", "http://a.com/ at 0+13"},
      {"\u3002", "http://a.com/ at 0+13"}, {"(.", "http://a.com/ at 0+13"},
      {"%", "http://a.com/%25%25"},        {"#", "http://a.com/#%23%23"},
      {"()", "http://a.com/()()"},
  };
  for (const auto& [text, link] : kCases) {
    EXPECT_EQ(foundLink("http://a.com/" + repeated(text, 100'000)).substr(0, link.size()), link)
        << text;
  }
}

}  // namespace
}  // namespace launcher
