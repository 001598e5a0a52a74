#pragma once

#import <Foundation/Foundation.h>

#include <optional>
#include <string>
#include <string_view>

#include "base/Url.h"

/// The only place that converts the toolkit's texts and URLs to ours and back. Any thread.
namespace launcher {

/// The text in UTF-8; a lone surrogate becomes U+FFFD, nil the empty text.
std::string toStdString(NSString* text);

/// The URL with the same absolute text, or absent, also for nil.
std::optional<Url> toUrl(NSURL* url);

/// The text as an autoreleased object; an ill-formed sequence becomes U+FFFD.
NSString* toNSString(std::string_view text);

/// The UTF-16 text as an autoreleased object; keeps lone surrogates.
NSString* toNSString(std::u16string_view units);

/// nil if the text is absent.
NSString* toNSStringOrNil(const std::optional<std::string>& text);

}  // namespace launcher
