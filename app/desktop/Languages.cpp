#include "app/desktop/Languages.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

namespace launcher {
namespace {

struct OtherName {
  std::string_view name;
  std::string_view folder;
};

/// Chinese is told apart by its script; Portuguese is better read in another country's form than
/// not at all.
constexpr std::array otherNames{
    OtherName{"zh-CN", "zh-Hans"}, OtherName{"zh-SG", "zh-Hans"}, OtherName{"zh-TW", "zh-Hant"},
    OtherName{"zh-HK", "zh-Hant"}, OtherName{"zh-MO", "zh-Hant"}, OtherName{"pt", "pt-BR"},
};

/// The C library's own locale, whose messages are the program's own.
bool isUntranslated(std::string_view locale) { return locale == "C" || locale == "POSIX"; }

const std::string& firstSet(const std::string& first, const std::string& second) {
  return first.empty() ? second : first;
}

/// "pt_BR.UTF-8@euro" → "pt-BR"
std::string nameOf(std::string_view locale) {
  std::string name{locale.substr(0, locale.find_first_of(".@"))};
  std::replace(name.begin(), name.end(), '_', '-');
  return name;
}

void appendNames(std::string name, std::vector<std::string>& names) {
  while (!name.empty()) {
    names.push_back(isUntranslated(name) ? "en" : name);
    for (const auto& other : otherNames) {
      if (other.name == name) {
        names.emplace_back(other.folder);
      }
    }
    const auto end = name.rfind('-');
    name.erase(end == std::string::npos ? 0 : end);
  }
}

std::string variable(const char* name) {
  const char* const value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): no thread sets one
  return value == nullptr ? "" : value;
}

}  // namespace

std::vector<std::string> preferredLanguages(const LocaleVariables& variables) {
  const auto& locale = firstSet(variables.lcAll, firstSet(variables.lcMessages, variables.lang));
  std::string_view locales = isUntranslated(locale) ? locale : firstSet(variables.language, locale);

  std::vector<std::string> names;
  while (!locales.empty()) {
    const auto end = std::min(locales.find(':'), locales.size());
    appendNames(nameOf(locales.substr(0, end)), names);
    locales.remove_prefix(std::min(end + 1, locales.size()));
  }
  return names;
}

LocaleVariables localeVariables() {
  return {variable("LANGUAGE"), variable("LC_ALL"), variable("LC_MESSAGES"), variable("LANG")};
}

}  // namespace launcher
