#pragma once

#import <Foundation/Foundation.h>

#include <string>
#include <vector>

namespace launcher {

/// The messages that the controller must answer, in the order in which they must be listed.
std::vector<std::string> controllerMessages();

/// Those that a class itself answers, without what the compiler and the memory's counting add. In
/// the order of the class's list, which the platform's runtime sorts by places in memory.
std::vector<std::string> messagesOf(Class type);

}  // namespace launcher
