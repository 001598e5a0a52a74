#pragma once

#include <string>
#include <vector>

namespace launcher {

/// What the desktop says of the person's languages; empty where a variable is not set.
struct LocaleVariables {
  std::string language;    ///< LANGUAGE: several locales, the best first, e.g. "pt_BR:pt:en"
  std::string lcAll;       ///< LC_ALL: one locale, e.g. "de_AT.UTF-8"
  std::string lcMessages;  ///< LC_MESSAGES
  std::string lang;        ///< LANG
};

/// The names that a folder with the person's language may have, the best first.
///
/// The first of LC_ALL, LC_MESSAGES and LANG that is set names the locale; LANGUAGE, where it is
/// set, replaces it, unless that is "C" or "POSIX". Whether the C library has such a locale does
/// not matter.
///
///   LANG=de_AT.UTF-8                 → "de-AT", "de"
///   LANG=pt_PT.UTF-8                 → "pt-PT", "pt", "pt-BR"
///   LANG=zh_CN.UTF-8                 → "zh-CN", "zh-Hans", "zh"
///   LANG=de_DE.UTF-8 LANGUAGE=fr:it  → "fr", "it"
///   LANG=C LANGUAGE=fr               → "en"
///   nothing set                      → nothing
std::vector<std::string> preferredLanguages(const LocaleVariables& variables);

/// The variables of this process.
LocaleVariables localeVariables();

}  // namespace launcher
