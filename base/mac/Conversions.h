#pragma once

#import <Foundation/Foundation.h>

#include <optional>
#include <string>
#include <string_view>

#include "base/Url.h"

/// From the toolkit's texts and URLs to ours and back; the only place that does it. Any thread.
namespace launcher {

/// The text in UTF-8; a lone surrogate becomes U+FFFD, nil the empty text.
std::string toStdString(NSString* text);

/// The URL by its absolute text, or absent, also for nil.
std::optional<Url> toUrl(NSURL* url);

/// The text as an autoreleased object; an ill-formed sequence becomes U+FFFD.
NSString* toNSString(std::string_view text);

/// The text of UTF-16 units as an autoreleased object; lone surrogates are kept.
NSString* toNSString(std::u16string_view units);

/// nil where the text is absent.
NSString* toNSStringOrNil(const std::optional<std::string>& text);

}  // namespace launcher
