#pragma once

#include <string>
#include <string_view>

#include "controller/LaunchState.h"

namespace launcher {

/// A text that the person reads: its key, which is the English text, and a comment for translators.
struct LocalizableText {
  std::string_view key;
  std::string_view comment;
};

namespace texts {

inline constexpr LocalizableText noURL{
    "Enter valid Vorx location to enable launch button",
    "Ask user to enter a valid Vorx address to enable the launch button"};
inline constexpr LocalizableText runningReadyToRun{
    "Press launch button to re-start remote control",
    "Launch button can now be pressed, app is already running"};
inline constexpr LocalizableText readyToRun{"Press launch button to start remote control",
                                            "Launch button can now be pressed"};
inline constexpr LocalizableText gettingIPAddress{
    "Looking up IP Address for the Vorx",
    "Please wait whilst we look up the IP address for the Vorx you entered"};

inline constexpr LocalizableText launch{"Launch", "Launch button"};
inline constexpr LocalizableText reLaunch{"Re-Launch", "Re-Launch button"};

/// "%@" stands for the host.
inline constexpr LocalizableText lookupFailed{"Failed to look up IP address for '%@'",
                                              "IP look up failed for the provided domain"};
inline constexpr LocalizableText checkAddress{
    "Please check you have entered the correct address",
    "Ask user to check they have entered the correct address"};
inline constexpr LocalizableText ok{"OK", "OK button"};

}  // namespace texts

/// The status line of a state.
const LocalizableText& statusText(LaunchState state);

/// The format with its first "%@" replaced by the value.
///
///     filledIn("no '%@'", "h%@")   -> "no 'h%@'"
std::string filledIn(std::string_view format, std::string_view value);

}  // namespace launcher
