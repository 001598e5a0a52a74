#pragma once

#include <QString>
#include <QStringList>
#include <span>
#include <string>
#include <string_view>

namespace launcher {

/// The texts in one language, from resources/LANGUAGE.lproj/Localizable.strings.
struct TextTable {
  struct Entry {
    std::string_view key;
    std::string_view text;
  };

  std::string_view language;  ///< the folder's name, e.g. "zh-Hans"
  std::span<const Entry> entries;

  QString name() const { return QString::fromStdString(std::string(language)); }
};

/// All tables. The build makes them from the folders.
std::span<const TextTable> textTables();

/// The table for a person who reads these languages, the preferred first; null if there is none.
/// Regional forms of a language match if they use the same script.
///
///     {"de-AT"}         -> de
///     {"pt-PT"}         -> pt-BR
///     {"la", "fr"}      -> fr
///     {"zh-TW"}         -> null
const TextTable* preferredTable(const QStringList& languages);

/// The table for the desktop's languages; null if there is none.
const TextTable* desktopsTable();

}  // namespace launcher
