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

/// Adds nothing for an empty text.
void add(FcPattern* pattern, const char* property, const std::string& text) {
  if (!text.empty()) FcPatternAddString(pattern, property, bytes(text.c_str()));
}

Pattern wanted(const std::string& language, FontWeight weight, const std::string& family) {
  Pattern pattern{FcPatternCreate()};
  add(pattern.get(), FC_FAMILY, family);
  FcPatternAddString(pattern.get(), FC_FAMILY, bytes("sans-serif"));
  FcPatternAddInteger(pattern.get(), FC_WEIGHT,
                      weight == FontWeight::bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
  add(pattern.get(), FC_LANG, language);
  FcConfigSubstitute(nullptr, pattern.get(), FcMatchPattern);
  FcDefaultSubstitute(pattern.get());
  return pattern;
}

Pattern match(const std::string& language, FontWeight weight, const std::string& family) {
  FcResult result{};
  return Pattern{FcFontMatch(nullptr, wanted(language, weight, family).get(), &result)};
}

/// Whether a font has a language's letters.
bool supports(const Pattern& font, const std::string& language) {
  FcLangSet* languages = nullptr;
  if (language.empty()) return true;
  if (!font || FcPatternGetLangSet(font.get(), FC_LANG, 0, &languages) != FcResultMatch) {
    return false;
  }
  return FcLangSetHasLang(languages, bytes(language.c_str())) != FcLangDifferentLang;
}

std::string postScriptName(const Pattern& font) {
  FcChar8* name = nullptr;
  if (!font || FcPatternGetString(font.get(), FC_POSTSCRIPT_NAME, 0, &name) != FcResultMatch) {
    return {};
  }
  return reinterpret_cast<const char*>(name);
}

}  // namespace

std::string desktopFont(const std::string& language, FontWeight weight, const std::string& family) {
  Pattern font = match(language, weight, family);
  if (!supports(font, language)) font = match(language, weight, {});
  return postScriptName(font);
}

std::string fontFamily(std::string_view description) {
  const auto end = description.find_last_not_of("0123456789. ");
  const auto family = description.substr(0, end == std::string_view::npos ? 0 : end + 1);
  const bool sized = family.size() < description.size();
  return std::string(sized && family.ends_with(',') ? family.substr(0, family.size() - 1) : family);
}

}  // namespace launcher
