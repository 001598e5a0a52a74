#include <climits>

#include "base/Url.h"
#include "base/UrlSyntax.h"
#import "base/mac/Conversions.h"

namespace launcher {
namespace {

NSURL* platformUrl(std::string_view text) { return [NSURL URLWithString:toNSString(text)]; }

std::optional<std::string> present(NSString* text) {
  if (text == nil) return std::nullopt;
  return toStdString(text);
}

}  // namespace

/// Systems differ in which texts they accept, and newer ones repair what older ones refuse. So
/// check the syntax first, and pass on only what every system accepts unchanged.
std::optional<Url> Url::parse(std::string_view text) {
  @autoreleasepool {
    if (!isUrl(text) || platformUrl(text) == nil) return std::nullopt;
    return Url(std::string(text));
  }
}

Url Url::ofFile(std::string_view path) {
  @autoreleasepool {
    NSURL* url = [NSURL fileURLWithPath:toNSString(path) isDirectory:NO];
    return Url(toStdString([url absoluteString]));
  }
}

std::optional<std::string> Url::scheme() const {
  @autoreleasepool {
    return present([platformUrl(text_) scheme]);
  }
}

std::optional<std::string> Url::host() const {
  @autoreleasepool {
    return present([platformUrl(text_) host]);
  }
}

std::string Url::filePath() const {
  @autoreleasepool {
    char path[PATH_MAX];
    const BOOL fits = [platformUrl(text_) getFileSystemRepresentation:path maxLength:sizeof(path)];
    return fits ? path : "";
  }
}

/// A URL without a path or at its root stays as it is. On older systems
/// `URLByDeletingLastPathComponent` appends "../" to it.
Url Url::deletingLastPathComponent() const {
  @autoreleasepool {
    NSURL* url = platformUrl(text_);
    if ([[url path] length] == 0 || [[url path] isEqualToString:@"/"]) return *this;
    NSURL* shortened = [url URLByDeletingLastPathComponent];
    return shortened == nil ? *this : Url(toStdString([shortened absoluteString]));
  }
}

}  // namespace launcher
