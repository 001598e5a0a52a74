#include "discovery/PropertyList.h"
#import "base/mac/Conversions.h"
#import "discovery/mac/ListConversions.h"

namespace launcher {
namespace {

PropertyListReading unreadable(std::string reason) { return {std::nullopt, std::move(reason)}; }

std::string reasonOf(NSError* error) {
  return error == nil ? "not a property list" : toStdString([error localizedDescription]);
}

}  // namespace

PropertyListReading readPropertyList(std::string_view bytes) {
  @autoreleasepool {
    NSError* error = nil;
    id list = [NSPropertyListSerialization propertyListWithData:[NSData dataWithBytes:bytes.data()
                                                                               length:bytes.size()]
                                                        options:NSPropertyListMutableContainers
                                                         format:nil
                                                          error:&error];
    if (list == nil) return unreadable(reasonOf(error));

    std::optional<PropertyList> value = toPropertyList(list);
    if (!value) return unreadable("too many values, or nested too deeply");
    return {std::move(value), {}};
  }
}

}  // namespace launcher
