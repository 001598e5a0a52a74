#include "app/desktop/Scale.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

namespace launcher {
namespace {

constexpr double ordinaryDpi = 96;
constexpr double largest = 4;

std::optional<double> dpiOf(const XSettings& settings) {
  const auto found = settings.numbers.find("Xft/DPI");
  if (found == settings.numbers.end() || found->second <= 0) return std::nullopt;
  return found->second / 1024.0;
}

std::string_view withoutBlanks(std::string_view text) {
  const auto first = text.find_first_not_of(" \t");
  return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

/// The number in a line such as "Xft.dpi: 192".
std::optional<double> dpiOf(std::string_view line) {
  constexpr std::string_view name = "Xft.dpi:";
  if (!line.starts_with(name)) return std::nullopt;
  const auto value = withoutBlanks(line.substr(name.size()));
  double dpi = 0;
  const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), dpi);
  return error == std::errc() && dpi > 0 ? std::optional(dpi) : std::nullopt;
}

std::optional<double> dpiAmong(std::string_view resources) {
  while (!resources.empty()) {
    const auto end = std::min(resources.find('\n'), resources.size());
    if (const auto dpi = dpiOf(resources.substr(0, end))) return dpi;
    resources.remove_prefix(std::min(end + 1, resources.size()));
  }
  return std::nullopt;
}

}  // namespace

double desktopScale(const XSettings& settings, std::string_view resources) {
  const auto told = dpiOf(settings);
  const double dpi = told ? *told : dpiAmong(resources).value_or(ordinaryDpi);
  return std::clamp(std::round(dpi / ordinaryDpi), 1.0, largest);
}

}  // namespace launcher
