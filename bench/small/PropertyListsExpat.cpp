// The floor: the XML alone, without a value made of it.

#include <benchmark/benchmark.h>
#include <expat.h>

#include "bench/small/Listing.h"

namespace launcher {
namespace {

int parse(const std::string& text) {
  int elements = 0;
  XML_Parser parser = XML_ParserCreate(nullptr);
  XML_SetUserData(parser, &elements);
  XML_SetElementHandler(
      parser, [](void* count, const XML_Char*, const XML_Char**) { ++*static_cast<int*>(count); },
      [](void*, const XML_Char*) {});
  XML_SetCharacterDataHandler(parser, [](void*, const XML_Char*, int) {});
  XML_Parse(parser, text.data(), static_cast<int>(text.size()), 1);
  XML_ParserFree(parser);
  return elements;
}

void readList(benchmark::State& state) {
  const std::string text = listingOf(static_cast<int>(state.range()));
  while (state.KeepRunning()) benchmark::DoNotOptimize(parse(text));
}
BENCHMARK(readList)->Name("list/floor")->Arg(1)->Arg(50)->Arg(1000);

}  // namespace
}  // namespace launcher
