#include "controller/Translations.h"

#include <QLocale>
#include <algorithm>

#include "controller/linux/TextTables.h"

namespace launcher {
namespace {

bool isReadBy(const QLocale& person, const TextTable& table) {
  const QLocale language(table.name());
  return language.language() == person.language() && language.script() == person.script();
}

class TableTranslations : public Translations {
 public:
  explicit TableTranslations(const TextTable* table) : table_(table) {}

  std::string operator()(const LocalizableText& text) const override {
    if (table_ == nullptr) return std::string(text.key);
    const auto found = std::ranges::find(table_->entries, text.key, &TextTable::Entry::key);
    return std::string(found == table_->entries.end() ? text.key : found->text);
  }

 private:
  const TextTable* table_;
};

}  // namespace

const TextTable* preferredTable(const QStringList& languages) {
  for (const QString& name : languages) {
    const QLocale person(name);
    const auto found = std::ranges::find_if(
        textTables(), [&](const TextTable& table) { return isReadBy(person, table); });
    if (found != textTables().end()) return &*found;
  }
  return nullptr;
}

const TextTable* desktopsTable() { return preferredTable(QLocale::system().uiLanguages()); }

std::unique_ptr<Translations> makeTranslations() {
  return std::make_unique<TableTranslations>(desktopsTable());
}

}  // namespace launcher
