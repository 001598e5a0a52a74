# Sourced by script/bootstrap: what a Mac needs, checked and told; nothing is installed.

bootstrap() {
  local tool list=""
  xcodebuild -version >/dev/null 2>&1 ||
    fail "needs Xcode; install it, then: sudo xcode-select -s /Applications/Xcode.app"
  for tool in cmake ninja; do
    command -v "$tool" >/dev/null || list="$list $tool"
  done
  command -v rsvg-convert >/dev/null || list="$list librsvg"
  [ -e "$(brew --prefix 2>/dev/null || echo /usr/local)/include/gtest/gtest.h" ] ||
    list="$list googletest"
  [ -z "$list" ] || fail "needs Homebrew's$list; install with: brew install$list"
}
