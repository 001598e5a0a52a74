# make-image's steps on macOS. Its options are variables.
# shellcheck shell=bash disable=SC2154

attached=''

# Signing refuses files with attributes of a browser or the Finder.
strip_attributes() {
  xattr -cr "$staged" || fail "could not strip the extended attributes of $staged"
}

# A signature with an identity carries a time stamp and can be notarised.
sign() {
  local stamp=--timestamp
  [ "$identity" != - ] || stamp=--timestamp=none
  codesign --force --sign "$identity" $stamp "$@" || fail "could not sign ${!#}"
}

# Executables get the hardened runtime.
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
  strip_attributes
  sign_code "$staged/Contents/Resources/bin/vexlink" "$viewer_entitlements"
  sign_code "$staged" "$entitlements"
}

# The system's indexer may hold a new volume for a moment.
disk_image() {
  local attempt
  for attempt in 1 2 3 4 5; do
    [ $attempt = 1 ] || sleep 2
    hdiutil "$@" >"$work/hdiutil.log" 2>&1 && return
    grep -q 'Resource busy' "$work/hdiutil.log" || break
  done
  cat "$work/hdiutil.log" >&2
  return 1
}

create_image() {
  disk_image create -ov -volname "$volume" -srcfolder "$work/volume" -fs HFS+ -format UDZO "$made" ||
    fail "could not make $image"
}

# macOS runs an application from an unsigned image at a random path, from which it cannot find its
# image.
sign_image() {
  [ "$identity" = - ] || sign "$made"
}

notary() { xcrun notarytool "$@" --keychain-profile "$notary_profile"; }

# The value of a key in the notary's last answer.
answered() { sed -n "s/.*\"$1\" *: *\"\([^\"]*\)\".*/\1/p" "$work/notary.json"; }

# A refusal and other failures have the same exit status, so read the answer.
notarise_image() {
  [ -n "$notary_profile" ] || return 0
  notary submit "$made" --wait --output-format json >"$work/notary.json" || true
  local status
  status=$(answered status)
  [ -n "$status" ] || fail "could not have $image notarised: $(cat "$work/notary.json")"
  if [ "$status" != Accepted ]; then
    notary log "$(answered id)" >&2 || true
    fail "the notary did not accept $image: $status"
  fi
  xcrun stapler staple "$made" || fail "could not attach the notary's ticket to $image"
}

check_image() {
  local volume_path=$work/check
  local seen=$volume_path/${staged##*/}
  mkdir "$volume_path"
  disk_image attach -readonly -nobrowse -mountpoint "$volume_path" "$made" ||
    fail "the image cannot be attached: $image"
  attached=$volume_path
  [ -d "$seen" ] || fail "the application is not at the top level of the image"
  [ -x "$seen/Contents/Resources/bin/vexlink" ] || fail "the viewer in the image cannot be run"
  codesign --verify --strict "$seen/Contents/Resources/bin/vexlink" ||
    fail "the viewer's signature in the image is not valid"
  codesign --verify --strict --deep "$seen" || fail "the application's signature is not valid"
  [ -z "$notary_profile" ] || spctl --assess --type execute "$seen" ||
    fail "the system would not let people start the application"
  leave_image || fail "could not detach $image"
  [ "$identity" = - ] || codesign --verify "$made" || fail "the image's signature is not valid"
  [ -z "$notary_profile" ] || check_notarised_image
}

# Checks as macOS does when a person opens the download.
check_notarised_image() {
  xcrun stapler validate -q "$made" || fail "the image does not carry the notary's ticket"
  spctl --assess --type open --context context:primary-signature "$made" ||
    fail "the system would not let people open the image"
}

leave_image() {
  [ -n "$attached" ] || return 0
  disk_image detach "$attached" || return 1
  attached=''
}
