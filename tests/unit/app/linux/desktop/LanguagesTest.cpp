#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/desktop/Languages.h"

namespace launcher {
namespace {

using Names = std::vector<std::string>;

struct Case {
  LocaleVariables variables;
  Names names;
};

void check(const std::vector<Case>& cases) {
  for (const auto& [variables, names] : cases) {
    SCOPED_TRACE("LANGUAGE=" + variables.language + " LC_ALL=" + variables.lcAll +
                 " LC_MESSAGES=" + variables.lcMessages + " LANG=" + variables.lang);
    EXPECT_EQ(preferredLanguages(variables), names);
  }
}

TEST(Languages, OneLocale) {
  check({
      {{.lang = "de_DE.UTF-8"}, {"de-DE", "de"}},
      {{.lang = "de_AT"}, {"de-AT", "de"}},
      {{.lang = "fr"}, {"fr"}},
      {{.lang = "it_IT@euro"}, {"it-IT", "it"}},
      {{.lang = "es_ES.ISO-8859-15@euro"}, {"es-ES", "es"}},
      {{.lang = "ja_JP.UTF-8"}, {"ja-JP", "ja"}},
      {{.lang = "xx"}, {"xx"}},
  });
}

TEST(Languages, PortugueseIsReadInBrazilsFormWhereThereIsNoOther) {
  check({
      {{.lang = "pt_BR.UTF-8"}, {"pt-BR", "pt", "pt-BR"}},
      {{.lang = "pt_PT.UTF-8"}, {"pt-PT", "pt", "pt-BR"}},
  });
}

TEST(Languages, ChineseIsToldApartByItsScript) {
  check({
      {{.lang = "zh_CN.UTF-8"}, {"zh-CN", "zh-Hans", "zh"}},
      {{.lang = "zh_SG"}, {"zh-SG", "zh-Hans", "zh"}},
      {{.lang = "zh_TW.UTF-8"}, {"zh-TW", "zh-Hant", "zh"}},
      {{.lang = "zh_HK"}, {"zh-HK", "zh-Hant", "zh"}},
      {{.lang = "zh_MO"}, {"zh-MO", "zh-Hant", "zh"}},
      {{.lang = "zh_Hans_CN"}, {"zh-Hans-CN", "zh-Hans", "zh"}},
  });
}

TEST(Languages, TheUntranslatedLocaleIsEnglish) {
  check({
      {{.lang = "C"}, {"en"}},
      {{.lang = "C.UTF-8"}, {"en"}},
      {{.lang = "POSIX"}, {"en"}},
  });
}

TEST(Languages, NothingSetNamesNothing) {
  check({
      {{}, {}},
      {{.language = ":"}, {}},
  });
}

TEST(Languages, TheMoreParticularVariableComesFirst) {
  check({
      {{.lcMessages = "fr", .lang = "de"}, {"fr"}},
      {{.lcAll = "it", .lcMessages = "fr", .lang = "de"}, {"it"}},
      {{.lcAll = "it", .lang = "de"}, {"it"}},
  });
}

TEST(Languages, LanguageReplacesTheLocale) {
  check({
      {{.language = "fr", .lang = "de"}, {"fr"}},
      {{.language = "fr", .lcAll = "de"}, {"fr"}},
      {{.language = "fr_CA:it", .lang = "de"}, {"fr-CA", "fr", "it"}},
      {{.language = "fr::it:", .lang = "de"}, {"fr", "it"}},
      {{.language = "fr"}, {"fr"}},
      {{.language = "fr", .lang = "C.UTF-8"}, {"fr"}},
  });
}

TEST(Languages, LanguageDoesNotReplaceTheUntranslatedLocale) {
  check({
      {{.language = "fr", .lang = "C"}, {"en"}},
      {{.language = "fr", .lcAll = "POSIX", .lang = "de"}, {"en"}},
      {{.language = "fr", .lcMessages = "C", .lang = "de"}, {"en"}},
  });
}

}  // namespace
}  // namespace launcher
