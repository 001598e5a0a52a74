# make-image's steps on Linux. Its options are variables.
# shellcheck shell=bash disable=SC2154

for tool in xorriso python3; do
  command -v "$tool" >/dev/null || fail "$tool is missing; script/bootstrap installs it"
done
# Debian 12 and 13 have it under different names.
sevenzip=$(command -v 7zz || command -v 7z) || fail "7zip is missing; script/bootstrap installs it"

case $identity$entitlements$viewer_entitlements$notary_profile in
  -) ;;
  *) fail "signing and notarising need a Mac" ;;
esac

sign_bundle() { :; }
sign_image() { :; }
notarise_image() { :; }
leave_image() { :; }

create_image() {
  xorriso -as mkisofs -quiet -hfsplus -V "$volume" -o "$made" "$work/volume" \
    >"$work/xorriso.log" 2>&1 || fail "could not make $image: $(tail -n 1 "$work/xorriso.log")"
}

# Lists the staged files, one line each: mode, path. The paths are in decomposed form, as in the
# volume.
staged_entries() {
  (cd "$work/volume" && find . -mindepth 1 -printf '%M %P\n') | python3 -c '
import sys, unicodedata
sys.stdout.write(unicodedata.normalize("NFD", sys.stdin.read()))' | sort
}

# Lists the image's files in the same form. Their paths begin with the volume's name.
image_entries() {
  "$sevenzip" l -slt -tHFS "$made" | awk '
    /^Path = / { path = substr($0, 8) }
    /^Mode = / { if (sub("^[^/]*/", "", path)) print substr($0, 8), path }' | sort
}

check_image() {
  diff <(staged_entries) <(image_entries) >"$work/differences" ||
    fail "the image does not hold what was put into it: $(sed -n 2p "$work/differences")"
}
