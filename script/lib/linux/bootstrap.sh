# Sourced by script/bootstrap: Debian's packages.

# The packages of the named groups, one a line; where none is named, of all groups but that of the
# benchmarks, which install many programs to be measured against.
packages() {
  awk -v wanted=" $* " '
    /^\[/ { group = substr($1, 2, length($1) - 2); next }
    /^#/ || NF == 0 { next }
    wanted == "  " && group != "bench" || index(wanted, " " group " ") { print $1 }
  ' script/lib/packages
}

# The installed packages, of those of a name where one is given.
installed() {
  dpkg-query --show --showformat '${db:Status-Status} ${Package}\n' "$@" | sed -n 's/^installed //p'
}

# Those of the named groups that are not there, one a line. A program that came another way than as
# a package is there too.
missing() {
  local package
  comm -13 <(installed | sort -u) <(packages "$@" | sort -u) | while read -r package; do
    [ -n "$(installed "$package" 2>/dev/null)" ] || command -v "$package" >/dev/null || say "$package"
  done
}

as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    fail "neither root nor sudo, and these packages are missing: $(missing | xargs)"
  fi
}

bootstrap() {
  local group list
  for group in "$@"; do
    grep -q "^\[$group\]$" script/lib/packages || fail "no group of packages is named '$group'"
  done
  command -v dpkg-query >/dev/null ||
    fail "this is no Debian: install what script/lib/packages lists by your system's means"

  list=$(missing "$@" | xargs)
  [ -n "$list" ] || return 0

  say "Installing $list"
  as_root apt-get update -qq || fail "the lists of packages cannot be fetched"
  # shellcheck disable=SC2086  # the list is made of words; what an asterisk stands for, apt knows
  as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get install -qq --yes --no-install-recommends $list </dev/null ||
    fail "not everything could be installed: $list"
}
