#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "base/Url.h"
#include "tests/contract/base/FoundationUrls.h"

namespace launcher {
namespace {

using namespace std::string_view_literals;

std::string shown(std::string_view text) { return testing::PrintToString(text); }

Url urlOf(std::string_view text) {
  const std::optional<Url> url = Url::parse(text);
  EXPECT_TRUE(url) << shown(text);
  return url.value();
}

TEST(UrlTest, KeepsTheFormOfAValidText) {
  constexpr std::string_view kValid[] = {
      "https://server.example",
      "https://server.example/",
      "HTTPS://Server.Example/A",
      "http://h:8080/D/F?q=1&r=2#top",
      "http://u:p@h/",
      "http://[::1]:8443/x",
      "http://h/a%20b%2f",
      "http://h/!$&'()*+,;=:@-._~",
      "//host/a",
      "/a/b",
      "a/b",
      "?q",
      "#f",
      "mailto:a@b",
      "file:///a",
      "http:",
      "x",
  };
  for (const std::string_view text : kValid) {
    EXPECT_EQ(urlOf(text).absoluteString(), text) << shown(text);
  }
}

TEST(UrlTest, RefusesWhatIsNoUrl) {
  constexpr std::string_view kInvalid[] = {
      "",
      " ",
      "https://h/a b",
      " https://h",
      "https://h ",
      "https://h/\t",
      "https://h/\n",
      "https://h/\0"sv,
      "https://h/\x7f",
      "https://h/\u00e9",
      "https://\u00e9.example/",
      "https://h/\xff",
      "https://h/%",
      "https://h/%2",
      "https://h/%zz",
      "https://h/%2g",
      "https://h/<a>",
      "https://h/\"a\"",
      "https://h/a\\b",
      "https://h/{a}",
      "https://h/a|b",
      "https://h/a^b",
      "https://h/a`b",
      "https://h/#a#b",
      "https://h/[a]",
      "https://h/?a[]",
      "https://h/#[a]",
      "https://u@v@h/",
      "https://h:80a/",
      "https://h:-1/",
      "https://::1/",
      "https://[::1/",
      "https://[]/",
      "https://[h]/",
      "https://[::1]a/",
      "https://[::1%en0]/",
      "https://[::1%25]/",
      "https://h\\a/",
      "1a:b",
      "-http://h",
      ":a",
  };
  for (const std::string_view text : kInvalid) {
    EXPECT_EQ(Url::parse(text), std::nullopt) << shown(text);
  }
}

struct PartCase {
  std::string_view url;
  std::optional<std::string> part;
};

TEST(UrlTest, GivesTheSchemeAsTyped) {
  const PartCase kCases[] = {
      {"https://h", "https"},   {"HtTp://h", "HtTp"},    {"mailto:a@b", "mailto"},
      {"a+b-c.9:x", "a+b-c.9"}, {"http:", "http"},       {"//h/a:b", std::nullopt},
      {"/a:b", std::nullopt},   {"h/a:b", std::nullopt}, {"a", std::nullopt},
      {"?a:b", std::nullopt},
  };
  for (const auto& [url, part] : kCases) EXPECT_EQ(urlOf(url).scheme(), part) << shown(url);
}

TEST(UrlTest, GivesTheHostAlone) {
  const PartCase kCases[] = {
      {"https://server.example", "server.example"},
      {"https://server.example/", "server.example"},
      {"https://Server.Example/a", "Server.Example"},
      {"https://server.example:8080/a", "server.example"},
      {"https://server.example?q", "server.example"},
      {"https://server.example#f", "server.example"},
      {"https://u:p@server.example:1/a@b", "server.example"},
      {"https://10.0.0.1/", "10.0.0.1"},
      {"https://[::1]", "::1"},
      {"https://[::1]:8443/x", "::1"},
      {"https://u@[fe80::1%25eth0]:1/", "fe80::1%eth0"},
      {"https://a%2Eb/", "a.b"},
      {"https://%C3%A9/", "\u00e9"},
      {"//host/a", "host"},
      {"file:///a", std::nullopt},
      {"https:///a", std::nullopt},
      {"https://", std::nullopt},
      {"https://:80/", ""},
      {"https://u@/", ""},
      {"https://%FF/", std::nullopt},
      {"https:", std::nullopt},
      {"mailto:a@b", std::nullopt},
      {"/a//b", std::nullopt},
      {"a", std::nullopt},
  };
  for (const auto& [url, part] : kCases) EXPECT_EQ(urlOf(url).host(), part) << shown(url);
}

struct TextCase {
  std::string_view url;
  std::string_view result;
};

TEST(UrlTest, RemovesTheLastPathComponent) {
  constexpr TextCase kCases[] = {
      {"https://h/D/F", "https://h/D/"},
      {"https://h/D/F.dmg", "https://h/D/"},
      {"https://h/dir", "https://h/"},
      {"https://h/dir/", "https://h/"},
      {"https://h/a/b/", "https://h/a/"},
      {"https://h", "https://h"},
      {"https://h/", "https://h/"},
      {"https://h/?q", "https://h/?q"},
      {"https://h?q", "https://h?q"},
      {"https://h#f", "https://h#f"},
      {"https://h/D/F?q=/x/y", "https://h/D/?q=/x/y"},
      {"https://h/D/F#/x", "https://h/D/#/x"},
      {"https://h/D/F?q#f", "https://h/D/?q#f"},
      {"https://h/D/F#f?g", "https://h/D/#f?g"},
      {"https://h:8080/D/F", "https://h:8080/D/"},
      {"https://u:p@h/D/F", "https://u:p@h/D/"},
      {"https://[::1]:1/D/F", "https://[::1]:1/D/"},
      {"https://h/a%2Fb", "https://h/"},
      {"https://h/a%2Fb/c", "https://h/a%2Fb/"},
      {"HTTPS://H/D/F", "HTTPS://H/D/"},
      {"https://h/../a", "https://h/../"},
      {"https://h/...", "https://h/"},
      {"file:///usr/local/bin", "file:///usr/local/"},
      {"file:///Volumes/V/L.app", "file:///Volumes/V/"},
      {"file:///Volumes", "file:///"},
      {"file:/a/b", "file:/a/"},
      {"//host/a", "//host/"},
      {"/a/b", "/a/"},
      {"/a", "/"},
      {"a/b", "a/"},
      {"a", "./"},
      {"a/", "./"},
  };
  for (const auto& [url, result] : kCases) {
    EXPECT_EQ(urlOf(url).deletingLastPathComponent().absoluteString(), result) << shown(url);
  }
}

std::string_view orAbsent(const std::optional<std::string>& text) { return text ? *text : kAbsent; }

TEST(UrlTest, AnswersAsFoundationDoes) {
  for (const auto& [text, answer, scheme, host] : kUrlAnswers) {
    const std::optional<Url> url = Url::repaired(text);
    ASSERT_TRUE(url) << shown(text);
    EXPECT_EQ(url->absoluteString(), answer) << shown(text);
    EXPECT_EQ(orAbsent(url->scheme()), scheme) << shown(text);
    EXPECT_EQ(orAbsent(url->host()), host) << shown(text);
    EXPECT_EQ(Url::parse(text).has_value(), text == answer) << shown(text);
  }
  for (const std::string_view text : kNoUrls) {
    EXPECT_EQ(Url::repaired(text), std::nullopt) << shown(text);
  }
  for (const auto& [text, folder] : kFolderAnswers) {
    EXPECT_EQ(Url::repaired(text)->deletingLastPathComponent().absoluteString(), folder)
        << shown(text);
  }
}

TEST(UrlTest, RepairsWhatFollowsTheHostOfAWebAddressAlone) {
  constexpr TextCase kCases[] = {
      {"http://h/a b", "http://h/a%20b"},
      {"https://u:p@h:80/a b", "https://u:p@h:80/a%20b"},
      {"https://[::1]:80/[a]", "https://[::1]:80/%5Ba%5D"},
      {"https://h?a b", "https://h?a%20b"},
      {"https://h#a b#c", "https://h#a%20b%23c"},
      {"https://h/%41 %4g", "https://h/%41%20%254g"},
      {"https://h/\xff", "https://h/%FF"},
  };
  for (const auto& [text, url] : kCases) {
    const std::optional<Url> repaired = Url::repaired(text);
    ASSERT_TRUE(repaired) << shown(text);
    EXPECT_EQ(repaired->absoluteString(), url) << shown(text);
  }
  for (const std::string_view text :
       {"https://h ", "https:// h/", "https://h\\/a b", "https://u v@h/a b", "https://h%/a b",
        "https://h:x/a b", "https:///a b", "https://u@/a b", "https://:80/a b", "https://h%ff/a b",
        "https:a b", "HTTPS://h/a b", "ftp://h/a b", "httpx://h/a b", "//h/a b", "/a b"}) {
    EXPECT_EQ(Url::repaired(text), std::nullopt) << shown(text);
  }
}

TEST(UrlTest, EscapesAndReadsFilePathsOfAnyBytes) {
  constexpr TextCase kCases[] = {
      {"/", "file:///"},
      {"/a", "file:///a"},
      {"/a b/c.dmg", "file:///a%20b/c.dmg"},
      {"/\u00e9", "file:///%C3%A9"},
      {"/100%", "file:///100%25"},
      {"/%20", "file:///%2520"},
      {"/a?b#c", "file:///a%3Fb%23c"},
      {"/a\\b\"<>|", "file:///a%5Cb%22%3C%3E%7C"},
      {"/a\nb", "file:///a%0Ab"},
      {"/a//b", "file:///a//b"},
  };
  for (const auto& [path, url] : kCases) {
    EXPECT_EQ(Url::ofFile(path).absoluteString(), url) << shown(path);
    EXPECT_EQ(Url::ofFile(path).filePath(), path) << shown(path);
    EXPECT_TRUE(Url::parse(Url::ofFile(path).absoluteString())) << shown(path);
  }
}

TEST(UrlTest, DropsTheSeparatorAtTheEndOfAFilePath) {
  EXPECT_EQ(Url::ofFile("/a/").absoluteString(), "file:///a");
  EXPECT_EQ(urlOf("file:///a/b/").filePath(), "/a/b");
  EXPECT_EQ(urlOf("file:///").filePath(), "/");
  EXPECT_EQ(urlOf("https://h").filePath(), "");
  EXPECT_EQ(urlOf("https://h/a%20b?q#f").filePath(), "/a b");
}

TEST(UrlTest, TakesARelativeFilePathFromTheWorkingFolder) {
  const std::string here = std::filesystem::current_path().native();
  EXPECT_EQ(Url::ofFile("a b").filePath(), here + "/a b");
}

TEST(UrlTest, EqualTextsMakeEqualUrls) {
  EXPECT_EQ(urlOf("https://h/a"), urlOf("https://h/a"));
  EXPECT_NE(urlOf("https://h/a"), urlOf("https://h/A"));
}

TEST(UrlTest, ManagesAMillionCharacters) {
  const std::string many(1'000'000, 'a');
  const std::string separators(1'000'000, '/');
  std::string folders;
  for (int i = 0; i < 500'000; ++i) folders += "a/";

  EXPECT_EQ(urlOf("https://h/" + many).deletingLastPathComponent().absoluteString(), "https://h/");
  EXPECT_EQ(urlOf("https://h/b" + separators).deletingLastPathComponent().absoluteString(),
            "https://h/");
  EXPECT_EQ(urlOf("https://h/" + folders).deletingLastPathComponent().absoluteString(),
            "https://h/" + folders.substr(2));
  EXPECT_EQ(urlOf("https://" + many).host(), many);
  EXPECT_EQ(urlOf("https://h/?" + many).host(), "h");
  EXPECT_EQ(Url::ofFile("/" + many).filePath(), "/" + many);
  EXPECT_EQ(Url::parse("https://h/" + many + " "), std::nullopt);
}

}  // namespace
}  // namespace launcher
