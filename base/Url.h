#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace launcher {

/// A URL, kept as its absolute text. A value; any thread.
class Url {
 public:
  /// Reads a URL, also a relative one, and changes nothing in it. Absent for the empty text, a
  /// character that no URL holds (a blank, a control or non-ASCII character, one of <>"\^`{|}), a
  /// bad escape, a second "#", brackets that do not enclose an IPv6 address, a port that is no
  /// number.
  static std::optional<Url> parse(std::string_view text);

  /// The same, but first escapes the characters that no URL holds, as browsers do: in the path,
  /// query and fragment of an "http://" or "https://" text with a host. Errors elsewhere stay
  /// errors, such as a host that is not ASCII.
  ///
  ///     https://h/a b?c=[d]   -> https://h/a%20b?c=%5Bd%5D
  ///     a b                   -> absent
  static std::optional<Url> repaired(std::string_view text);

  /// The file URL of a path that is not a folder. A relative path starts at the working folder.
  /// Escapes the bytes that a URL cannot hold.
  ///
  ///     Url::ofFile("/a b/c.dmg")   -> file:///a%20b/c.dmg
  static Url ofFile(std::string_view path);

  /// The scheme without its colon, in its given case; absent if there is none.
  std::optional<std::string> scheme() const;

  /// The host name with escapes decoded, without port, credentials or an IPv6 address's brackets.
  /// Absent if there is none; empty if there are only a port or credentials.
  std::optional<std::string> host() const;

  /// The path with escapes decoded, without a trailing separator (the root stays "/").
  std::string filePath() const;

  /// The URL without the last component of its path. Query, fragment, port and credentials stay;
  /// "%2F" is no separator. Systems differ for paths with "//", "." or "..".
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
