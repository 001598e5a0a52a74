#import "discovery/mac/ListConversions.h"

#import "base/mac/Conversions.h"

namespace launcher {
namespace {

constexpr int deepestNesting = 512;

/// Room for a listing of 10,000 attached images with 50 values and keys each, and their texts.
constexpr std::size_t mostMemory = 48U << 20U;

/// Roughly what one value or key takes without its text.
constexpr std::size_t valueSize = 64;

/// One conversion. What has become too much is noted, and the rest left out.
class Conversion {
 public:
  PropertyList valueOf(id object) {
    take(valueSize);
    if (exceeded_) return {};
    if ([object isKindOfClass:[NSString class]]) return textOf(object);
    if ([object isKindOfClass:[NSArray class]]) return nested([&] { return arrayOf(object); });
    if ([object isKindOfClass:[NSDictionary class]]) {
      return nested([&] { return dictionaryOf(object); });
    }
    return {};
  }

  bool exceeded() const { return exceeded_; }

 private:
  void take(std::size_t size) {
    taken_ += size;
    if (taken_ > mostMemory) exceeded_ = true;
  }

  template <class Read>
  PropertyList nested(Read read) {
    if (++depth_ > deepestNesting) exceeded_ = true;
    PropertyList value = read();
    --depth_;
    return value;
  }

  std::string textOf(NSString* object) {
    std::string text = toStdString(object);
    take(text.size());
    return text;
  }

  PropertyList arrayOf(NSArray* objects) {
    PropertyList::Array values;
    for (id object in objects) {
      if (exceeded_) break;
      values.push_back(valueOf(object));
    }
    return values;
  }

  PropertyList dictionaryOf(NSDictionary* objects) {
    PropertyList::Dictionary values;
    for (id key in objects) {
      if (exceeded_ || ![key isKindOfClass:[NSString class]]) return {};
      std::string keyText = textOf(key);
      values.emplace_back(std::move(keyText), valueOf([objects objectForKey:key]));
    }
    return values;
  }

  std::size_t taken_ = 0;
  int depth_ = 0;
  bool exceeded_ = false;
};

}  // namespace

std::optional<PropertyList> toPropertyList(id object) {
  Conversion conversion;
  PropertyList list = conversion.valueOf(object);
  if (conversion.exceeded()) return std::nullopt;
  return list;
}

PropertyList::Dictionary toDictionary(NSDictionary* dictionary) {
  const std::optional<PropertyList> list = toPropertyList(dictionary);
  if (!list || list->dictionary() == nullptr) return {};
  return *list->dictionary();
}

}  // namespace launcher
