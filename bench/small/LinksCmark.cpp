// The same by the autolinks of a Markdown reader, which reads the rest of Markdown on the way.

#include <benchmark/benchmark.h>
#include <cmark-gfm-core-extensions.h>
#include <cmark-gfm.h>

#include <string>

#include "bench/small/LinkTexts.h"

namespace launcher {
namespace {

int linksIn(const std::string& text) {
  cmark_parser* parser = cmark_parser_new(CMARK_OPT_DEFAULT);
  cmark_parser_attach_syntax_extension(parser, cmark_find_syntax_extension("autolink"));
  cmark_parser_feed(parser, text.data(), text.size());
  cmark_node* document = cmark_parser_finish(parser);
  cmark_iter* nodes = cmark_iter_new(document);
  int count = 0;
  while (cmark_iter_next(nodes) != CMARK_EVENT_DONE) {
    if (cmark_node_get_type(cmark_iter_get_node(nodes)) == CMARK_NODE_LINK) ++count;
  }
  cmark_iter_free(nodes);
  cmark_node_free(document);
  cmark_parser_free(parser);
  return count;
}

void everyLink(benchmark::State& state, const std::string& text) {
  cmark_gfm_core_extensions_ensure_registered();
  while (state.KeepRunning()) benchmark::DoNotOptimize(linksIn(text));
}
BENCHMARK_CAPTURE(everyLink, typed, std::string(kTypedLocation))->Name("typed/cmark-gfm");
BENCHMARK_CAPTURE(everyLink, prose, kProse.ofSize(1'000'000))->Name("megabyte/cmark-gfm");

const bool registered = [] {
  for (const HostileText& hostile : kHostileTexts) {
    const std::string name = std::string("hostile/cmark-gfm/") + hostile.name + "/10000";
    benchmark::RegisterBenchmark(name.c_str(), everyLink, hostile.ofSize(10'000));
  }
  return true;
}();

}  // namespace
}  // namespace launcher
