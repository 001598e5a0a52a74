// Bytes give a value or an error, and the value is the one that another reader sees there.
#include "discovery/PropertyList.h"

#include "tests/fuzz/ExpatReference.h"
#include "tests/fuzz/Fuzzing.h"
#include "tests/fuzz/PlistReference.h"

using namespace launcher;
using namespace launcher::fuzzing;

static bool secondReadingAgrees(std::string_view bytes, const PropertyList& value) {
  if (bytes.starts_with("bplist")) return PlistReference::agrees(bytes, value);
  const auto second = ExpatReference::read(bytes);
  return !second || second == value;
}

FUZZ_TARGET(text) {
  const PropertyListReading reading = readPropertyList(text);
  require(reading.value.has_value() == reading.error.empty(), "a value or an error, not both");
  if (!reading.value) return;

  require(readPropertyList(text).value == reading.value, "the same bytes give the same value");
  require(secondReadingAgrees(text, *reading.value), "another reader sees the same value");
}
