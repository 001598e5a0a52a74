# Sourced by script/bootstrap: Debian's packages.

# Prints the packages of the named groups, one per line. Without a name, prints all groups except the
# benchmarks', which has many programs to compare with.
packages() {
  awk -v wanted=" $* " '
    /^\[/ { group = substr($1, 2, length($1) - 2); next }
    /^#/ || NF == 0 { next }
    wanted == "  " && group != "bench" || index(wanted, " " group " ") { print $1 }
  ' script/lib/packages
}

# Prints the installed packages, or those that match a name.
installed() {
  dpkg-query --show --showformat '${db:Status-Status} ${Package}\n' "$@" | sed -n 's/^installed //p'
}

# Prints the missing packages of the named groups, one per line. A program that was installed in
# another way is not missing.
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
  # shellcheck disable=SC2086 # the list is split into words; apt expands an asterisk
  as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get install -qq --yes --no-install-recommends $list </dev/null ||
    fail "not everything could be installed: $list"
}
