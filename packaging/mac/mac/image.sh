# How make-image works on macOS. It brings its options as variables.
# shellcheck shell=bash disable=SC2154

attached=''

# A signature of somebody carries a time stamp and is fit for notarisation.
sign() {
  local stamp=--timestamp
  [ "$identity" != - ] || stamp=--timestamp=none
  codesign --force --sign "$identity" $stamp "$@" || fail "could not sign ${!#}"
}

# Executable code runs hardened.
sign_code() {
  local file=$1 rights=$2
  if [ -n "$rights" ]; then
    sign --options runtime --entitlements "$rights" "$file"
  else
    sign --options runtime "$file"
  fi
}

# From the inside out: the application's signature covers the viewer.
sign_bundle() {
  sign_code "$staged/Contents/Resources/bin/vexlink" "$viewer_entitlements"
  sign_code "$staged" "$entitlements"
}

create_image() {
  hdiutil create -quiet -volname "$volume" -srcfolder "$work/volume" -fs HFS+ -format UDZO "$image" ||
    fail "could not make $image"
}

# The system runs an application out of an unsigned image at a random place, where it cannot tell
# which image it came from.
sign_image() {
  [ "$identity" = - ] || sign "$image"
}

notarise_image() {
  [ -n "$notary_profile" ] || return 0
  xcrun notarytool submit "$image" --keychain-profile "$notary_profile" --wait ||
    fail "could not have $image notarised"
  xcrun stapler staple "$image" || fail "could not attach the notary's ticket to $image"
}

check_image() {
  local volume_path=$work/check
  local seen=$volume_path/${staged##*/}
  hdiutil attach -quiet -readonly -nobrowse -mountpoint "$volume_path" "$image" ||
    fail "the image cannot be attached: $image"
  attached=$volume_path
  [ -d "$seen" ] || fail "the application is not at the top level of the image"
  [ -x "$seen/Contents/Resources/bin/vexlink" ] || fail "the viewer in the image cannot be run"
  codesign --verify --strict "$seen/Contents/Resources/bin/vexlink" ||
    fail "the viewer's signature in the image is not valid"
  codesign --verify --strict --deep "$seen" || fail "the application's signature is not valid"
  leave_image
  [ "$identity" = - ] || codesign --verify "$image" || fail "the image's signature is not valid"
  [ -z "$notary_profile" ] || xcrun stapler validate -q "$image" ||
    fail "the image does not carry the notary's ticket"
}

leave_image() {
  [ -z "$attached" ] || hdiutil detach -quiet "$attached" || echo "could not detach $attached" >&2
  attached=''
}
