#include "base/Url.h"

#include <filesystem>
#include <system_error>

#include "base/PercentEncoding.h"
#include "base/Unicode.h"

namespace launcher {
namespace {

constexpr ByteSet kSchemeBytes{kLetters, kDigits, "+-."};
constexpr ByteSet kFilePathBytes{kLetters, kDigits, "-._~!$&'()*+,=:@/"};
/// Brackets are let through wherever they stand, as the platform does; "#" and "%" have rules.
constexpr ByteSet kUrlBytes{kLetters, kDigits, "-._~!$&'()*+,;=:@/?[]"};

bool isValidUrl(std::string_view text) {
  bool fragmentSeen = false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char byte = text[at];
    if (kUrlBytes.holds(byte)) continue;
    if (beginsWithEscape(text.substr(at))) continue;
    if (byte != '#' || fragmentSeen) return false;
    fragmentSeen = true;
  }
  return !text.empty();
}

/// The parts of a URL's text that are asked for here. "before" ends where the path begins.
struct Parts {
  std::optional<std::string_view> scheme;
  std::optional<std::string_view> authority;
  std::string_view before;
  std::string_view path;
  std::string_view after;
};

std::optional<std::string_view> schemeOf(std::string_view text) {
  std::size_t end = 0;
  while (end < text.size() && kSchemeBytes.holds(text[end])) ++end;
  const bool beginsWithLetter = kLetters.find(text.front()) != std::string_view::npos;
  if (end == text.size() || text[end] != ':' || !beginsWithLetter) return std::nullopt;
  return text.substr(0, end);
}

Parts split(std::string_view text) {
  Parts parts;
  parts.scheme = schemeOf(text);
  std::size_t begin = parts.scheme ? parts.scheme->size() + 1 : 0;
  if (text.substr(begin).starts_with("//")) {
    parts.authority = text.substr(begin + 2, text.find_first_of("/?#", begin + 2) - begin - 2);
    begin += 2 + parts.authority->size();
  }
  parts.before = text.substr(0, begin);
  parts.path = text.substr(begin, text.find_first_of("?#", begin) - begin);
  parts.after = text.substr(begin + parts.path.size());
  return parts;
}

/// "mailto:a@b": what follows the scheme is no path.
bool isOpaque(const Parts& parts) {
  return parts.scheme && !parts.authority && !parts.path.starts_with('/');
}

std::string_view hostText(std::string_view authority) {
  if (const std::size_t at = authority.rfind('@'); at != std::string_view::npos) {
    authority.remove_prefix(at + 1);
  }
  if (!authority.starts_with('[')) return authority.substr(0, authority.find(':'));
  authority.remove_prefix(1);
  return authority.substr(0, authority.find(']'));
}

/// Without the separators at its end; a path of separators alone keeps one.
std::string_view withoutTrailingSeparators(std::string_view path) {
  const std::size_t last = path.find_last_not_of('/');
  return path.substr(0, last == std::string_view::npos ? 1 : last + 1);
}

std::string pathWithoutLastComponent(std::string_view path) {
  const std::string_view trimmed = withoutTrailingSeparators(path);
  if (trimmed.empty() || trimmed == "/") return std::string(path);

  const std::size_t begin = trimmed.rfind('/') + 1;
  const std::string folder(trimmed.substr(0, begin));
  const std::string_view last = trimmed.substr(begin);
  if (last == "..") return std::string(trimmed) + "/../";
  if (last == ".") return folder + "../";
  return folder.empty() ? "./" : folder;
}

}  // namespace

std::optional<Url> Url::parse(std::string_view text) {
  if (!isValidUrl(text)) return std::nullopt;
  return Url(std::string(text));
}

Url Url::ofFile(std::string_view path) {
  std::string absolute;
  if (!path.starts_with('/')) {
    std::error_code ignored;
    absolute = std::filesystem::current_path(ignored).native() + "/";
  }
  absolute += path;
  return Url("file://" + escaped(withoutTrailingSeparators(absolute), kFilePathBytes));
}

std::optional<std::string> Url::scheme() const {
  const Parts parts = split(text_);
  if (!parts.scheme) return std::nullopt;
  return std::string(*parts.scheme);
}

std::optional<std::string> Url::host() const {
  const Parts parts = split(text_);
  if (!parts.authority) return std::nullopt;
  std::string host = unescaped(hostText(*parts.authority));
  if (host.empty() || !isUtf8(host)) return std::nullopt;
  return host;
}

std::string Url::filePath() const {
  return unescaped(withoutTrailingSeparators(split(text_).path));
}

Url Url::deletingLastPathComponent() const {
  const Parts parts = split(text_);
  if (isOpaque(parts)) return *this;
  std::string text(parts.before);
  text += pathWithoutLastComponent(parts.path);
  text += parts.after;
  return Url(std::move(text));
}

}  // namespace launcher
