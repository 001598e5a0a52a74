// Bytes give a value or an error; the value of a binary list is the one that another reader sees.
#include "discovery/PropertyList.h"

#include "discovery/BinaryListCheck.h"
#include "tests/fuzz/Fuzzing.h"
#include "tests/fuzz/PlistReference.h"

using namespace launcher;
using namespace launcher::fuzzing;

FUZZ_TARGET(text) {
  const PropertyListReading reading = readPropertyList(text);
  require(reading.value.has_value() == reading.error.empty(), "a value or an error, not both");
  if (!reading.value) return;

  require(readPropertyList(text).value == reading.value, "the same bytes give the same value");
  require(!isBinaryList(text) || PlistReference::agrees(text, *reading.value),
          "another reader sees the same value");
}
