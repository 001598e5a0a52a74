#include "app/desktop/Fonts.h"

#include <fontconfig/fontconfig.h>

#include <memory>

namespace launcher {
namespace {

struct DestroyPattern {
  void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};

using Pattern = std::unique_ptr<FcPattern, DestroyPattern>;

const FcChar8* bytes(const char* text) { return reinterpret_cast<const FcChar8*>(text); }

Pattern wanted(const std::string& language, FontWeight weight) {
  Pattern pattern{FcPatternCreate()};
  FcPatternAddString(pattern.get(), FC_FAMILY, bytes("sans-serif"));
  FcPatternAddInteger(pattern.get(), FC_WEIGHT,
                      weight == FontWeight::bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
  if (!language.empty()) {
    FcPatternAddString(pattern.get(), FC_LANG, bytes(language.c_str()));
  }
  FcConfigSubstitute(nullptr, pattern.get(), FcMatchPattern);
  FcDefaultSubstitute(pattern.get());
  return pattern;
}

}  // namespace

std::string desktopFont(const std::string& language, FontWeight weight) {
  FcResult result{};
  const Pattern font{FcFontMatch(nullptr, wanted(language, weight).get(), &result)};
  FcChar8* name = nullptr;
  if (!font || FcPatternGetString(font.get(), FC_POSTSCRIPT_NAME, 0, &name) != FcResultMatch) {
    return {};
  }
  return reinterpret_cast<const char*>(name);
}

}  // namespace launcher
