#pragma once

namespace launcher {

/// Makes AppKit, or what stands in for it, ready for these tests. Once, before anything else. False
/// where there is no screen to show windows on.
bool prepareToolkit();

}  // namespace launcher
