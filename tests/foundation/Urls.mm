#import <Foundation/Foundation.h>

#include <cstring>

@implementation NSURL (FileSystemRepresentation)

- (BOOL)getFileSystemRepresentation:(char*)buffer maxLength:(NSUInteger)length {
  const char* path = [[self path] fileSystemRepresentation];
  if (path == nullptr || std::strlen(path) >= length) return NO;
  std::strcpy(buffer, path);
  return YES;
}

@end
