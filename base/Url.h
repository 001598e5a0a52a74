#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace launcher {

/// A URL, kept as its absolute text. A value; any thread.
class Url {
 public:
  /// The URL that a text spells just as it stands, also a relative one. Absent for the empty text,
  /// a character inside that no URL holds (a blank, a control or non-ASCII character, one of
  /// <>"\^`{|}), a bad escape, a second "#", brackets but around an IPv6 address, a port that is no
  /// number.
  static std::optional<Url> parse(std::string_view text);

  /// The same, but the characters that no URL holds are escaped first in the path, query and
  /// fragment of an "http://" or "https://" text with a host, as browsers write them. What is wrong
  /// elsewhere stays wrong, a host that is not ASCII too.
  ///
  ///     https://h/a b?c=[d]   -> https://h/a%20b?c=%5Bd%5D
  ///     a b                   -> absent
  static std::optional<Url> repaired(std::string_view text);

  /// The file URL of a path that is not a folder; a relative path is taken from the working
  /// folder. Bytes that a URL cannot hold are escaped.
  ///
  ///     Url::ofFile("/a b/c.dmg")   -> file:///a%20b/c.dmg
  static Url ofFile(std::string_view path);

  /// The scheme without its colon, in the case in which it was given; absent where there is none.
  std::optional<std::string> scheme() const;

  /// The host name without port or credentials, escapes decoded; absent where there is none, empty
  /// where a port or credentials stand alone. An IPv6 host comes without its brackets.
  std::optional<std::string> host() const;

  /// The path's bytes with escapes decoded, without a trailing separator (the root stays "/").
  std::string filePath() const;

  /// The URL with the last component of its path removed; query, fragment, port and credentials
  /// stay, and "%2F" is no separator. Systems differ for paths with "//", "." or "..".
  ///
  ///     https://h/D/F     -> https://h/D/
  ///     https://h/dir/    -> https://h/
  ///     https://h/        -> https://h/
  ///     https://h         -> https://h
  Url deletingLastPathComponent() const;

  /// The whole URL as text.
  const std::string& absoluteString() const { return text_; }

  friend bool operator==(const Url&, const Url&) = default;

 private:
  explicit Url(std::string text) : text_(std::move(text)) {}

  std::string text_;
};

}  // namespace launcher
