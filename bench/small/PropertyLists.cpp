// Reading the listing of attached images. The floor parses the XML and makes no value; the peer is
// a C library for property lists.

#include <benchmark/benchmark.h>
#include <plist/plist.h>

#include <QtCore/QXmlStreamReader>
#include <string>
#include <string_view>

#include "discovery/PropertyList.h"

namespace launcher {
namespace {

/// One image in a listing of the macOS tool; "#" stands for the image's number.
constexpr std::string_view kImage = R"(<dict>
<key>autodiskmount</key><true/>
<key>blockcount</key><integer>204800</integer>
<key>image-encrypted</key><false/>
<key>image-path</key><string>/Users/somebody/Downloads/Vorx Launcher #.dmg</string>
<key>image-type</key><string>read-only disk image</string>
<key>owner-uid</key><integer>501</integer>
<key>system-entities</key>
<array>
<dict>
<key>content-hint</key><string>GUID_partition_scheme</string>
<key>dev-entry</key><string>/dev/disk#</string>
</dict>
<dict>
<key>content-hint</key><string>Apple_HFS</string>
<key>dev-entry</key><string>/dev/disk#s1</string>
<key>mount-point</key><string>/Volumes/Vorx Launcher #</string>
<key>potentially-mountable</key><true/>
<key>volume-kind</key><string>hfs</string>
</dict>
</array>
<key>writeable</key><false/>
</dict>
)";

std::string listingOf(const benchmark::State& state) {
  std::string text = R"(<?xml version="1.0" encoding="UTF-8"?>)"
                     R"(<plist version="1.0"><dict><key>images</key><array>)";
  for (int i = 0; i < state.range(); ++i) {
    const std::string number = std::to_string(i);
    for (const char character : kImage) {
      character == '#' ? text += number : text += character;
    }
  }
  return text + "</array></dict></plist>";
}

void ours(benchmark::State& state) {
  const std::string text = listingOf(state);
  while (state.KeepRunning()) benchmark::DoNotOptimize(readPropertyList(text));
}
BENCHMARK(ours)->Name("list/ours")->Arg(1)->Arg(50)->Arg(1000);

int elementsIn(const std::string& text) {
  int elements = 0;
  QXmlStreamReader xml(QByteArray::fromStdString(text));
  while (!xml.atEnd()) elements += xml.readNext() == QXmlStreamReader::StartElement ? 1 : 0;
  return elements;
}

void floor(benchmark::State& state) {
  const std::string text = listingOf(state);
  while (state.KeepRunning()) benchmark::DoNotOptimize(elementsIn(text));
}
BENCHMARK(floor)->Name("list/floor")->Arg(1)->Arg(50)->Arg(1000);

void library(benchmark::State& state) {
  const std::string text = listingOf(state);
  while (state.KeepRunning()) {
    plist_t list = nullptr;
    plist_from_xml(text.data(), static_cast<std::uint32_t>(text.size()), &list);
    benchmark::DoNotOptimize(list);
    plist_free(list);
  }
}
BENCHMARK(library)->Name("list/libplist")->Arg(1)->Arg(50)->Arg(1000);

}  // namespace
}  // namespace launcher
