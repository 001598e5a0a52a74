// The texts that are part of the program.

#include <gtest/gtest.h>

#include "controller/Translations.h"
#include "controller/linux/TextTables.h"

namespace launcher {
namespace {

std::string languageFor(const QStringList& person) {
  const TextTable* const table = preferredTable(person);
  return table == nullptr ? "none" : std::string(table->language);
}

TEST(TranslationsTest, TheFirstLanguageThatThereIsCounts) {
  const std::vector<std::pair<QStringList, std::string>> cases = {
      {{QStringLiteral("de-AT")}, "de"},
      {{QStringLiteral("de-DE"), QStringLiteral("de")}, "de"},
      {{QStringLiteral("la-VA"), QStringLiteral("fr")}, "fr"},
      {{QStringLiteral("pt-PT")}, "pt-BR"},
      {{QStringLiteral("zh-CN")}, "zh-Hans"},
      {{QStringLiteral("zh-SG")}, "zh-Hans"},
      {{QStringLiteral("zh-TW")}, "none"},
      {{QStringLiteral("zh-TW"), QStringLiteral("ja")}, "ja"},
      {{QStringLiteral("C")}, "none"},
      {{QStringLiteral("xx-nonsense")}, "none"},
      {{}, "none"},
  };
  for (const auto& [person, table] : cases) {
    EXPECT_EQ(languageFor(person), table) << person.join(QLatin1Char(' ')).toStdString();
  }
}

TEST(TranslationsTest, EveryTableHasEveryKey) {
  ASSERT_GE(textTables().size(), 8);
  for (const TextTable& table : textTables()) {
    EXPECT_EQ(table.entries.size(), textTables().front().entries.size()) << table.language;
  }
}

TEST(TranslationsTest, TextsAreInTheDesktopsLanguage) {
  EXPECT_EQ((*makeTranslations())(texts::launch), "Starten");
}

TEST(TranslationsTest, AKeyThatTheTableLacksIsShownItself) {
  EXPECT_EQ((*makeTranslations())({"no such %@ \u00e9", "comment"}), "no such %@ \u00e9");
}

}  // namespace
}  // namespace launcher
