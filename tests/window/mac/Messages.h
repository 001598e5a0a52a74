#pragma once

#import <Foundation/Foundation.h>

#include <string>
#include <vector>

namespace launcher {

/// The messages that the controller must answer, in the order in which they must be listed.
std::vector<std::string> controllerMessages();

/// The messages that a class itself answers, without those that the compiler and reference counting
/// add. They come in the order of the class's list, which the platform's runtime sorts by addresses
/// in memory.
std::vector<std::string> messagesOf(Class type);

}  // namespace launcher
