#import "controller/Conversions.h"

#import "base/Conversions.h"

namespace launcher {
namespace {

PropertyList valueOf(id object);

PropertyList::Array arrayOf(NSArray* objects) {
  PropertyList::Array values;
  for (id object in objects) values.push_back(valueOf(object));
  return values;
}

bool hasTextKeysOnly(NSDictionary* dictionary) {
  for (id key in dictionary) {
    if (![key isKindOfClass:[NSString class]]) return false;
  }
  return true;
}

PropertyList valueOf(id object) {
  if ([object isKindOfClass:[NSString class]]) return fromToolkit(static_cast<NSString*>(object));
  if ([object isKindOfClass:[NSArray class]]) return arrayOf(object);
  if ([object isKindOfClass:[NSDictionary class]] && hasTextKeysOnly(object)) {
    return fromToolkit(static_cast<NSDictionary*>(object));
  }
  return {};
}

}  // namespace

PropertyList::Dictionary fromToolkit(NSDictionary* dictionary) {
  PropertyList::Dictionary values;
  for (id key in dictionary) {
    if (![key isKindOfClass:[NSString class]]) continue;
    values[fromToolkit(static_cast<NSString*>(key))] = valueOf([dictionary objectForKey:key]);
  }
  return values;
}

}  // namespace launcher
