#pragma once

#include <string>
#include <string_view>

namespace launcher {

/// An image of a listing as the macOS tool writes it; a "#" stands for the image's number.
inline constexpr std::string_view kImage = R"(<dict>
<key>autodiskmount</key><true/>
<key>blockcount</key><integer>204800</integer>
<key>image-encrypted</key><false/>
<key>image-path</key><string>/Users/somebody/Downloads/Vorx Launcher #.dmg</string>
<key>image-type</key><string>read-only disk image</string>
<key>owner-uid</key><integer>501</integer>
<key>removable</key><true/>
<key>system-entities</key>
<array>
<dict>
<key>content-hint</key><string>GUID_partition_scheme</string>
<key>dev-entry</key><string>/dev/disk#</string>
<key>unmapped-content-hint</key><string>GUID_partition_scheme</string>
</dict>
<dict>
<key>content-hint</key><string>Apple_HFS</string>
<key>dev-entry</key><string>/dev/disk#s1</string>
<key>mount-point</key><string>/Volumes/Vorx Launcher #</string>
<key>potentially-mountable</key><true/>
<key>unmapped-content-hint</key><string>48465300-0000-11AA-AA11-00306543ECAC</string>
<key>volume-kind</key><string>hfs</string>
</dict>
</array>
<key>writeable</key><false/>
</dict>
)";

/// A listing of attached images.
inline std::string listingOf(int images) {
  std::string text = R"(<?xml version="1.0" encoding="UTF-8"?>)"
                     R"(<plist version="1.0"><dict><key>images</key><array>)";
  for (int i = 0; i < images; ++i) {
    const std::string number = std::to_string(i);
    for (const char character : kImage) {
      character == '#' ? text += number : text += character;
    }
  }
  return text + "</array></dict></plist>";
}

}  // namespace launcher
