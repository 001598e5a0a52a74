#pragma once

#import <Foundation/Foundation.h>

#include <string>
#include <string_view>

#include "base/Url.h"
#include "discovery/PropertyList.h"

/// From the toolkit's objects to the logic's values and back; the only place that does it. Any
/// thread.
namespace launcher {

/// The text in UTF-8; a lone surrogate becomes U+FFFD, nil the empty text.
std::string fromToolkit(NSString* text);

/// The listing's values; what the logic does not read becomes `PropertyList::Other`, and an entry
/// whose key is no text is dropped.
PropertyList::Dictionary fromToolkit(NSDictionary* dictionary);

/// The URL by its absolute text, or absent, also for nil.
std::optional<Url> fromToolkit(NSURL* url);

/// The text as an autoreleased object; an ill-formed sequence becomes U+FFFD.
NSString* toToolkit(std::string_view text);

/// nil where the text is absent.
NSString* toToolkitOrNil(const std::optional<std::string>& text);

}  // namespace launcher
