# Sourced by every script in script/: the messages that they share.

say() { printf '%s\n' "$*"; }

fail() {
  printf 'script/%s: %s\n' "$(basename "$0")" "$*" >&2
  exit 1
}

# Prints the script's opening comment.
help() { sed -n '2,/^[^#]/s/^# \{0,1\}//p' "script/$(basename "$0")"; }

case " $* " in
  *" --help "* | *" -h "*)
    help
    exit 0
    ;;
esac

case "$(uname -s)" in
  Linux) platform=linux ;;
  Darwin) platform=mac ;;
  *) fail "this system is neither Linux nor macOS" ;;
esac
# shellcheck disable=SC2034  # the sourcing scripts read it
readonly platform
