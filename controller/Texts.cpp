#include "controller/Texts.h"

#include "base/FatalError.h"

namespace launcher {

const LocalizableText& statusText(LaunchState state) {
  switch (state) {
    case LaunchState::noURL:
      return texts::noURL;
    case LaunchState::runningReadyToRun:
      return texts::runningReadyToRun;
    case LaunchState::readyToRun:
      return texts::readyToRun;
    case LaunchState::gettingIPAddress:
      return texts::gettingIPAddress;
  }
  fatalError("no such launch state", "Texts", __LINE__);
}

std::string filledIn(std::string_view format, std::string_view value) {
  constexpr std::string_view placeholder = "%@";
  const std::size_t at = format.find(placeholder);
  std::string text(format);
  if (at != std::string_view::npos) text.replace(at, placeholder.size(), value);
  return text;
}

}  // namespace launcher
