#include "base/Url.h"

#include <filesystem>
#include <system_error>

#include "base/Unicode.h"
#include "base/UrlSyntax.h"

namespace launcher {
namespace {

namespace fs = std::filesystem;

/// A semicolon is escaped, as in the desktop's own file URLs.
constexpr ByteSet kFilePathBytes{kLetters, kDigits, "-._~!$&'()*+,=:@/"};

/// The path without trailing separators. A path of separators only keeps one.
std::string_view withoutTrailingSeparators(std::string_view path) {
  const std::size_t last = path.find_last_not_of('/');
  return path.substr(0, last == std::string_view::npos ? 1 : last + 1);
}

/// The root, and a path that ends in "..", stay whole: they have no component to remove.
std::string pathWithoutLastComponent(std::string_view path) {
  const std::string_view trimmed = withoutTrailingSeparators(path);
  const std::size_t begin = trimmed.rfind('/') + 1;
  if (trimmed.substr(begin) == "..") return std::string(trimmed) + "/";
  if (trimmed.empty() || trimmed == "/") return std::string(path);
  const std::string_view folder = withoutTrailingSeparators(trimmed.substr(0, begin));
  return folder.empty() || folder == "/" ? std::string(folder) : std::string(folder) + "/";
}

}  // namespace

std::optional<Url> Url::parse(std::string_view text) {
  if (!isUrl(text)) return std::nullopt;
  return Url(std::string(text));
}

Url Url::ofFile(std::string_view path) {
  std::error_code ignored;
  const fs::path absolute = "/" / fs::current_path(ignored) / path;
  return Url("file://" + escaped(withoutTrailingSeparators(absolute.native()), kFilePathBytes));
}

std::optional<std::string> Url::scheme() const {
  return std::optional<std::string>(splitUrl(text_).scheme);
}

std::optional<std::string> Url::host() const {
  const UrlParts parts = splitUrl(text_);
  if (!parts.authority || parts.authority->empty()) return std::nullopt;
  std::string host = unescaped(hostIn(*parts.authority));
  if (!isUtf8(host)) return std::nullopt;
  return host;
}

std::string Url::filePath() const {
  return unescaped(withoutTrailingSeparators(splitUrl(text_).path));
}

/// A relative path that loses its only component becomes "./", since it must not be empty.
Url Url::deletingLastPathComponent() const {
  const UrlParts parts = splitUrl(text_);
  std::string path = pathWithoutLastComponent(parts.path);
  if (parts.front.empty() && path.empty()) path = parts.path.empty() ? "../" : "./";
  return Url(std::string(parts.front) + path + std::string(parts.tail));
}

}  // namespace launcher
