// Bytes give a value or an error, and of well-formed XML the value that another reader sees there.
#include "discovery/PropertyList.h"

#include "tests/fuzz/ExpatReference.h"
#include "tests/fuzz/Fuzzing.h"

using namespace launcher;
using namespace launcher::fuzzing;

FUZZ_TARGET(text) {
  const PropertyListReading reading = readPropertyList(text);
  require(reading.value.has_value() == reading.error.empty(), "a value or an error, not both");
  if (!reading.value) return;

  require(readPropertyList(text).value == reading.value, "the same bytes give the same value");
  // Carriage returns are kept, as the platform keeps them; other readers make them line feeds.
  if (text.starts_with("bplist") || text.find('\r') != std::string_view::npos) return;
  const auto expected = ExpatReference::read(text);
  require(!expected || expected == reading.value, "another reader sees the same value");
}
