#pragma once

#include <memory>
#include <string>

#include "controller/Texts.h"

namespace launcher {

/// Looks up texts in the main bundle's default strings table. Any thread.
class Translations {
 public:
  virtual ~Translations() = default;

  /// The text in the person's language; the key itself if there is no translation.
  virtual std::string operator()(const LocalizableText& text) const = 0;
};

/// Makes one for the running application's bundle.
std::unique_ptr<Translations> makeTranslations();

}  // namespace launcher
