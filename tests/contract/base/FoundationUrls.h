#pragma once

#include <string_view>

/// What the published Foundation answers to texts that are taken for URLs. It has two parsers, one
/// of older and one of newer systems. Where they differ, the newer one's answer stands here.
namespace launcher {

using namespace std::string_view_literals;

/// Stands where there is no answer.
inline constexpr std::string_view kAbsent = "(absent)";

struct UrlAnswer {
  std::string_view text;
  std::string_view url;  ///< the text, or what it is repaired to
  std::string_view scheme;
  std::string_view host;
};

inline constexpr UrlAnswer kUrlAnswers[] = {
    {"https://server.example", "https://server.example", "https", "server.example"},
    {"https://server.example/", "https://server.example/", "https", "server.example"},
    {"https://server.example?q", "https://server.example?q", "https", "server.example"},
    {"https://server.example#f", "https://server.example#f", "https", "server.example"},
    {"HTTPS://Server.Example/A", "HTTPS://Server.Example/A", "HTTPS", "Server.Example"},
    {"https://vorx.example/d/f", "https://vorx.example/d/f", "https", "vorx.example"},
    {"https://vorx.example/d/", "https://vorx.example/d/", "https", "vorx.example"},
    {"https://vorx.example/d//", "https://vorx.example/d//", "https", "vorx.example"},
    {"https://vorx.example/d//f", "https://vorx.example/d//f", "https", "vorx.example"},
    {"https://h/a//b", "https://h/a//b", "https", "h"},
    {"https://h/a/b///", "https://h/a/b///", "https", "h"},
    {"https://h/a/.", "https://h/a/.", "https", "h"},
    {"https://h/a/..", "https://h/a/..", "https", "h"},
    {"https://h/../", "https://h/../", "https", "h"},
    {"http://u:p@h/", "http://u:p@h/", "http", "h"},
    {"http://[::1]:8443/x", "http://[::1]:8443/x", "http", "::1"},
    {"https://u@[fe80::1%25eth0]:1/", "https://u@[fe80::1%25eth0]:1/", "https", "fe80::1%eth0"},
    {"https://:80/", "https://:80/", "https", ""},
    {"https://u@/", "https://u@/", "https", ""},
    {"https://", "https://", "https", kAbsent},
    {"https:", "https:", "https", kAbsent},
    {"http:///d/f", "http:///d/f", "http", kAbsent},
    {"https://a%2Eb/", "https://a%2Eb/", "https", "a.b"},
    {"https://%C3%A9/", "https://%C3%A9/", "https", "\u00e9"},
    {"https://%FF/", "https://%FF/", "https", kAbsent},
    {"http://h/a%20b%2f", "http://h/a%20b%2f", "http", "h"},
    {"https://vorx.example/d/%E4", "https://vorx.example/d/%E4", "https", "vorx.example"},
    {"https://h/%", "https://h/%25", "https", "h"},
    {"https://h/%2", "https://h/%252", "https", "h"},
    {"https://h/%zz", "https://h/%25zz", "https", "h"},
    {"https://vorx.example/d/a b", "https://vorx.example/d/a%20b", "https", "vorx.example"},
    {"https://vorx.example/d/f ", "https://vorx.example/d/f%20", "https", "vorx.example"},
    {"https://h/\t", "https://h/%09", "https", "h"},
    {"https://h/D/F\n", "https://h/D/F%0A", "https", "h"},
    {"https://h/\0"sv, "https://h/%00", "https", "h"},
    {"https://vorx.example/d/\u00e4", "https://vorx.example/d/%C3%A4", "https", "vorx.example"},
    {"https://vorx.example/d/f\u0301", "https://vorx.example/d/f%CC%81", "https", "vorx.example"},
    {"https://vorx.example/d/\U0001f600", "https://vorx.example/d/%F0%9F%98%80", "https",
     "vorx.example"},
    {"https://vorx.example/d/f[1]", "https://vorx.example/d/f%5B1%5D", "https", "vorx.example"},
    {"https://vorx.example/d/f?x[]=2", "https://vorx.example/d/f?x%5B%5D=2", "https",
     "vorx.example"},
    {"https://vorx.example/d/f|g", "https://vorx.example/d/f%7Cg", "https", "vorx.example"},
    {"https://vorx.example/d/f?x=a|b", "https://vorx.example/d/f?x=a%7Cb", "https", "vorx.example"},
    {"https://vorx.example/d/{f}", "https://vorx.example/d/%7Bf%7D", "https", "vorx.example"},
    {"https://vorx.example/d/f^g", "https://vorx.example/d/f%5Eg", "https", "vorx.example"},
    {"https://vorx.example/d/`f`", "https://vorx.example/d/%60f%60", "https", "vorx.example"},
    {"https://vorx.example/d/<f>", "https://vorx.example/d/%3Cf%3E", "https", "vorx.example"},
    {"https://vorx.example/d/\"f\"", "https://vorx.example/d/%22f%22", "https", "vorx.example"},
    {"https://vorx.example/d\\f", "https://vorx.example/d%5Cf", "https", "vorx.example"},
    {"https://vorx.example/d/f#a#b", "https://vorx.example/d/f#a%23b", "https", "vorx.example"},
    {"http://h:8080/D/F?q=1&r[]=2#top", "http://h:8080/D/F?q=1&r%5B%5D=2#top", "http", "h"},
    {"mailto:a@b", "mailto:a@b", "mailto", kAbsent},
    {"mailto:a/b", "mailto:a/b", "mailto", kAbsent},
    {"file:///a//b", "file:///a//b", "file", kAbsent},
    {"file:///a/./b/..", "file:///a/./b/..", "file", kAbsent},
    {"file:///", "file:///", "file", kAbsent},
    {"x", "x", kAbsent, kAbsent},
    {"a/b", "a/b", kAbsent, kAbsent},
    {"?q", "?q", kAbsent, kAbsent},
    {"#f", "#f", kAbsent, kAbsent},
    {"//host/a", "//host/a", kAbsent, "host"},
};

/// Texts that give no URL: one of the parsers refuses them, or takes them in a way that helps
/// nobody.
inline constexpr std::string_view kNoUrls[] = {
    "https://u@v@vorx.example/d/f",
    "https://[fe80::1%en0]/d/f",
    "https://[::1/d/f",
    "https://::1/d/f",
    "https://vorx.example:80a/d/f",
    "https://vorx.example:-1/d/f",
    "https://b\u00fccher.example/d/f",
    "https://\u4e2d\u6587.example/d/f",
    "https://vorx\u3002example/d/f",
    "1a:b",
    "::1",
    "-http://x",
    "\u00e9",
    "a b",
    " ",
    "",
    "<array/>",
};

struct FolderAnswer {
  std::string_view text;
  std::string_view folder;  ///< the URL without the last component of its path
};

/// Where both parsers agree.
inline constexpr FolderAnswer kFolderAnswers[] = {
    {"HTTPS://Server.Example/A", "HTTPS://Server.Example/"},
    {"https://vorx.example/d/f", "https://vorx.example/d/"},
    {"https://vorx.example/d/", "https://vorx.example/"},
    {"http://[::1]:8443/x", "http://[::1]:8443/"},
    {"http:///d/f", "http:///d/"},
    {"http://h/a%20b%2f", "http://h/"},
    {"https://vorx.example/d/%E4", "https://vorx.example/d/"},
    {"https://h/%", "https://h/"},
    {"https://h/%2", "https://h/"},
    {"https://h/%zz", "https://h/"},
    {"https://vorx.example/d/a b", "https://vorx.example/d/"},
    {"https://vorx.example/d/f ", "https://vorx.example/d/"},
    {"https://h/\t", "https://h/"},
    {"https://h/D/F\n", "https://h/D/"},
    {"https://h/\0"sv, "https://h/"},
    {"https://vorx.example/d/\u00e4", "https://vorx.example/d/"},
    {"https://vorx.example/d/f\u0301", "https://vorx.example/d/"},
    {"https://vorx.example/d/\U0001f600", "https://vorx.example/d/"},
    {"https://vorx.example/d/f[1]", "https://vorx.example/d/"},
    {"https://vorx.example/d/f?x[]=2", "https://vorx.example/d/?x%5B%5D=2"},
    {"https://vorx.example/d/f|g", "https://vorx.example/d/"},
    {"https://vorx.example/d/f?x=a|b", "https://vorx.example/d/?x=a%7Cb"},
    {"https://vorx.example/d/{f}", "https://vorx.example/d/"},
    {"https://vorx.example/d/f^g", "https://vorx.example/d/"},
    {"https://vorx.example/d/`f`", "https://vorx.example/d/"},
    {"https://vorx.example/d/<f>", "https://vorx.example/d/"},
    {"https://vorx.example/d/\"f\"", "https://vorx.example/d/"},
    {"https://vorx.example/d\\f", "https://vorx.example/"},
    {"https://vorx.example/d/f#a#b", "https://vorx.example/d/#a%23b"},
    {"http://h:8080/D/F?q=1&r[]=2#top", "http://h:8080/D/?q=1&r%5B%5D=2#top"},
    {"x", "./"},
    {"a/b", "a/"},
    {"//host/a", "//host/"},
};

/// Where they do not: "//", "." and ".." in the path, or no folder at all.
inline constexpr FolderAnswer kNewerFolderAnswers[] = {
    {"https://server.example", "https://server.example"},
    {"https://server.example/", "https://server.example/"},
    {"https://server.example?q", "https://server.example?q"},
    {"https://server.example#f", "https://server.example#f"},
    {"https://vorx.example/d//", "https://vorx.example/"},
    {"https://vorx.example/d//f", "https://vorx.example/d/"},
    {"https://h/a//b", "https://h/a/"},
    {"https://h/a/b///", "https://h/a/"},
    {"https://h/a/.", "https://h/a/"},
    {"https://h/a/..", "https://h/a/../"},
    {"https://h/../", "https://h/../"},
    {"http://u:p@h/", "http://u:p@h/"},
    {"https://u@[fe80::1%25eth0]:1/", "https://u@[fe80::1%25eth0]:1/"},
    {"https://:80/", "https://:80/"},
    {"https://u@/", "https://u@/"},
    {"https://", "https://"},
    {"https:", "https:"},
    {"https://a%2Eb/", "https://a%2Eb/"},
    {"https://%C3%A9/", "https://%C3%A9/"},
    {"https://%FF/", "https://%FF/"},
    {"mailto:a@b", "mailto:"},
    {"mailto:a/b", "mailto:a/"},
    {"file:///a//b", "file:///a/"},
    {"file:///a/./b/..", "file:///a/./b/../"},
    {"file:///", "file:///"},
    {"?q", "../?q"},
    {"#f", "../#f"},
};

}  // namespace launcher
