#pragma once

#include <map>
#include <string>

#include "controller/Translations.h"

namespace launcher {

/// A strings table held in memory; a key that it lacks stands for itself.
class FakeTranslations : public Translations {
 public:
  std::map<std::string, std::string, std::less<>> table;

  std::string operator()(const LocalizableText& text) const override {
    const auto found = table.find(text.key);
    return found == table.end() ? std::string(text.key) : found->second;
  }
};

}  // namespace launcher
