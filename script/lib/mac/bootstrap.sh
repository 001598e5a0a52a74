# Sourced by script/bootstrap: checks what a Mac needs and reports it. Installs nothing.

# The C++ library of an older Xcode lacks parts of C++20 that the code uses.
readonly oldest_xcode=15

bootstrap() {
  local version tool list=""
  version=$(xcodebuild -version 2>/dev/null | sed -n 's/^Xcode \([0-9]*\).*/\1/p' || true)
  [ "${version:-0}" -ge "$oldest_xcode" ] ||
    fail "needs Xcode $oldest_xcode or later; install it, then: sudo xcode-select -s /Applications/Xcode.app"
  for tool in cmake ninja pytest; do
    command -v "$tool" >/dev/null || list="$list $tool"
  done
  command -v rsvg-convert >/dev/null || list="$list librsvg"
  [ -e "$(brew --prefix 2>/dev/null || echo /usr/local)/include/gtest/gtest.h" ] ||
    list="$list googletest"
  [ -z "$list" ] || fail "needs Homebrew's$list; install with: brew install$list"
}
