#include "discovery/PropertyListReader.h"

#import "base/mac/Conversions.h"
#include "discovery/PropertyListLimits.h"
#import "discovery/mac/ListConversions.h"

namespace launcher {

PropertyList readList(std::string_view bytes) {
  @autoreleasepool {
    NSError* error = nil;
    id list = [NSPropertyListSerialization propertyListWithData:[NSData dataWithBytes:bytes.data()
                                                                               length:bytes.size()]
                                                        options:NSPropertyListMutableContainers
                                                         format:nullptr
                                                          error:&error];
    if (list != nil) return toPropertyList(list);
    throw UnreadableList(error == nil ? "not a property list"
                                      : toStdString([error localizedDescription]));
  }
}

}  // namespace launcher
