#include <gtest/gtest.h>

#include <functional>
#include <tuple>
#include <utility>

#include "controller/Texts.h"

namespace launcher {
namespace {

struct Expected {
  const LocalizableText& text;
  const char* key;
  const char* comment;
};

TEST(TextsTest, KeysAndCommentsAreExact) {
  const Expected table[] = {
      {statusText(LaunchState::noURL), "Enter valid Vorx location to enable launch button",
       "Ask user to enter a valid Vorx address to enable the launch button"},
      {statusText(LaunchState::runningReadyToRun), "Press launch button to re-start remote control",
       "Launch button can now be pressed, app is already running"},
      {statusText(LaunchState::readyToRun), "Press launch button to start remote control",
       "Launch button can now be pressed"},
      {statusText(LaunchState::gettingIPAddress), "Looking up IP Address for the Vorx",
       "Please wait whilst we look up the IP address for the Vorx you entered"},
      {texts::launch, "Launch", "Launch button"},
      {texts::reLaunch, "Re-Launch", "Re-Launch button"},
      {texts::lookupFailed, "Failed to look up IP address for '%@'",
       "IP look up failed for the provided domain"},
      {texts::checkAddress, "Please check you have entered the correct address",
       "Ask user to check they have entered the correct address"},
      {texts::ok, "OK", "OK button"},
  };
  for (const auto& [text, key, comment] : table) {
    EXPECT_EQ(text.key, key);
    EXPECT_EQ(text.comment, comment) << key;
  }
}

TEST(TextsTest, FillsTheFirstPlaceholderIn) {
  const std::tuple<const char*, const char*, const char*> table[] = {
      {"for '%@'", "host", "for 'host'"}, {"%@", "", ""},
      {"%@ and %@", "a", "a and %@"},     {"'%@'", "%@", "'%@'"},
      {"'%@'", "%s%n", "'%s%n'"},         {"none", "host", "none"},
  };
  for (const auto& [format, value, expected] : table) {
    EXPECT_EQ(filledIn(format, value), expected) << format << " <- " << value;
  }
}

TEST(LaunchStateTest, OrdinalIsStorageAndHash) {
  static_assert(sizeof(LaunchState) == 1);
  const std::pair<LaunchState, std::size_t> table[] = {
      {LaunchState::noURL, 0},
      {LaunchState::runningReadyToRun, 1},
      {LaunchState::readyToRun, 2},
      {LaunchState::gettingIPAddress, 3},
  };
  for (const auto& [state, ordinal] : table) {
    EXPECT_EQ(static_cast<std::size_t>(state), ordinal);
    EXPECT_EQ(std::hash<LaunchState>{}(state), ordinal);
  }
}

}  // namespace
}  // namespace launcher
