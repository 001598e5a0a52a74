#include <climits>

#include "base/Url.h"
#import "base/mac/Conversions.h"

namespace launcher {
namespace {

NSURL* platformUrl(std::string_view text) { return [NSURL URLWithString:toNSString(text)]; }

std::optional<std::string> present(NSString* text) {
  if (text == nil) return std::nullopt;
  return toStdString(text);
}

}  // namespace

/// Newer systems repair a text with forbidden characters instead of refusing it: what has not kept
/// its form is refused here.
std::optional<Url> Url::parse(std::string_view text) {
  @autoreleasepool {
    if (text.empty()) return std::nullopt;
    NSURL* url = platformUrl(text);
    if (url == nil || toStdString([url absoluteString]) != text) return std::nullopt;
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

/// A URL without a path stays as it is; the platform would append "../" to it.
Url Url::deletingLastPathComponent() const {
  @autoreleasepool {
    NSURL* url = platformUrl(text_);
    if ([[url path] length] == 0) return *this;
    NSURL* shortened = [url URLByDeletingLastPathComponent];
    return shortened == nil ? *this : Url(toStdString([shortened absoluteString]));
  }
}

}  // namespace launcher
