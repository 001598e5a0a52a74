#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The texts in which links are looked for. link-peers.mjs makes the same.
namespace launcher {

inline constexpr std::string_view kTypedLocation = "https://server.example/path";

/// A text made to take long: a beginning, and a piece that follows it again and again.
struct HostileText {
  const char* name;
  std::string_view beginning;
  std::string_view piece;

  std::string ofSize(std::size_t size) const {
    std::string text(beginning);
    while (text.size() < size) text += piece;
    return text;
  }
};

inline constexpr HostileText kProse{
    "prose", "",
    "Some words about https://server.example/path?q=1, then example.com and (name@example.com); "
    "nothing in this sentence. "};

inline constexpr HostileText kHostileTexts[] = {
    {"bare domains", "", "a.com "},
    {"dots", "", "a."},
    {"hyphens", "", "a-"},
    {"numbers", "", "1."},
    {"underscores", "", "www.a_"},
    {"ats", "", "@"},
    {"names", "", "a@"},
    {"schemes", "", "://"},
    {"brackets", "", "("},
    {"unknown domains", "", "a.zz "},
    {"international", "", "\u00fc.zz "},
    {"closing brackets", "http://a.com/", ")"},
};

}  // namespace launcher
