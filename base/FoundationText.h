#pragma once

#import <Foundation/Foundation.h>

#include <string>
#include <string_view>

/// From Foundation's texts to ours and back; the only place that does it. Any thread.
namespace launcher {

/// The text in UTF-8; a lone surrogate becomes U+FFFD, nil the empty text.
std::string fromToolkit(NSString* text);

/// The text as an autoreleased object; an ill-formed sequence becomes U+FFFD.
NSString* toToolkit(std::string_view text);

/// The text of UTF-16 units as an autoreleased object; lone surrogates are kept.
NSString* toToolkit(std::u16string_view units);

}  // namespace launcher
