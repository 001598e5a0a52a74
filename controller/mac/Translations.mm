#import <Foundation/Foundation.h>

#import "base/mac/Conversions.h"
#include "controller/Translations.h"

namespace launcher {
namespace {

class BundleTranslations : public Translations {
 public:
  std::string operator()(const LocalizableText& text) const override {
    @autoreleasepool {
      return toStdString([[NSBundle mainBundle] localizedStringForKey:toNSString(text.key)
                                                                value:@""
                                                                table:nil]);
    }
  }
};

}  // namespace

std::unique_ptr<Translations> makeTranslations() { return std::make_unique<BundleTranslations>(); }

}  // namespace launcher
