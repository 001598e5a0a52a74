#import "discovery/mac/ListConversions.h"

#include <utility>

#import "base/mac/Conversions.h"
#include "discovery/PropertyListLimits.h"

namespace launcher {
namespace {

class Conversion {
 public:
  PropertyList valueOf(id object, int depth) {
    checkDepth(depth);
    if ([object isKindOfClass:[NSString class]]) return textOf(object);
    count(0);
    if ([object isKindOfClass:[NSArray class]]) return arrayOf(object, depth);
    if ([object isKindOfClass:[NSDictionary class]]) return dictionaryOf(object, depth);
    return {};
  }

 private:
  void count(std::size_t textSize) {
    memory_ += valueMemory(textSize);
    checkMemory(memory_);
  }

  std::string textOf(NSString* object) {
    std::string text = toStdString(object);
    count(text.size());
    return text;
  }

  PropertyList arrayOf(NSArray* objects, int depth) {
    PropertyList::Array values;
    for (id object in objects) values.push_back(valueOf(object, depth + 1));
    return values;
  }

  PropertyList dictionaryOf(NSDictionary* objects, int depth) {
    PropertyList::Dictionary values;
    for (id key in objects) {
      if (![key isKindOfClass:[NSString class]]) return {};
      std::string keyText = textOf(key);
      values.emplace_back(std::move(keyText), valueOf([objects objectForKey:key], depth + 1));
    }
    return values;
  }

  std::size_t memory_ = 0;
};

}  // namespace

PropertyList toPropertyList(id object) { return Conversion().valueOf(object, 1); }

PropertyList::Dictionary toDictionary(NSDictionary* dictionary) try {
  const PropertyList list = toPropertyList(dictionary);
  return list.dictionary() == nullptr ? PropertyList::Dictionary() : *list.dictionary();
} catch (const UnreadableList&) {
  return {};
}

}  // namespace launcher
