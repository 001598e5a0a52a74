#pragma once

#include <QString>
#include <QStringList>
#include <span>
#include <string>
#include <string_view>

namespace launcher {

/// The shown texts in one language, as resources/LANGUAGE.lproj/Localizable.strings has them.
struct TextTable {
  struct Entry {
    std::string_view key;
    std::string_view text;
  };

  std::string_view language;  ///< as the folder is named, e.g. "zh-Hans"
  std::span<const Entry> entries;

  QString name() const { return QString::fromStdString(std::string(language)); }
};

/// All of them, made from the folders by the build.
std::span<const TextTable> textTables();

/// The table for a person who reads these languages, the best first; null where there is none. The
/// form of a language does not matter as long as it is written in the same script.
///
///     {"de-AT"}         -> de
///     {"pt-PT"}         -> pt-BR
///     {"nl", "fr"}      -> fr
///     {"zh-TW"}         -> null
const TextTable* preferredTable(const QStringList& languages);

/// The table for the person who uses the desktop; null where there is none.
const TextTable* desktopsTable();

}  // namespace launcher
