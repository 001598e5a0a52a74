// A text that is written into a property list is read back. If XML can hold it, it is the same.
#include "discovery/linux/XmlText.h"

#include <algorithm>
#include <string>

#include "base/Unicode.h"
#include "discovery/PropertyList.h"
#include "tests/fuzz/Fuzzing.h"

using namespace launcher;
using namespace launcher::fuzzing;

/// Whether XML can surely hold the text. U+FFFE and U+FFFF, which it cannot, begin with 0xEF.
static bool isHoldable(std::string_view text) {
  return isUtf8(text) && std::all_of(text.begin(), text.end(),
                                     [](unsigned char c) { return c >= ' ' && c != 0xEF; });
}

FUZZ_TARGET(text) {
  const auto list = readPropertyList(xmlPropertyList("<string>" + xmlText(text) + "</string>"));
  require(list.value && list.value->text() != nullptr, "a written text is read");
  const std::string& read = *list.value->text();
  require(isUtf8(read), "what is read is well-formed");
  require(!isHoldable(text) || read == text, "a text is kept");
}
