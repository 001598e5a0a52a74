// The link check of a typed location, the links of a long text, and texts made to take long. The
// floor reads every byte; the peer is a Markdown reader's autolinks.

#include <benchmark/benchmark.h>
#include <cmark-gfm-core-extensions.h>
#include <cmark-gfm.h>

#include <cstring>
#include <string>
#include <string_view>

#include "base/Unicode.h"
#include "net/AddressChecks.h"
#include "net/LinkDetector.h"

namespace launcher {
namespace {

const std::string kLocation = "https://server.example/path";

/// A beginning, and a piece that is repeated after it.
std::string repeated(const std::string& piece, std::size_t size, std::string text = "") {
  while (text.size() < size) text += piece;
  return text;
}

const std::string kProse = repeated(
    "Some words about https://server.example/path?q=1, then example.com and (name@example.com); "
    "nothing in this sentence. ",
    1'000'000);

struct HostileText {
  const char* name = "";
  const char* piece = "";
  const char* beginning = "";
};

constexpr HostileText kHostileTexts[] = {
    {"bare domains", "a.com "},
    {"dots", "a."},
    {"hyphens", "a-"},
    {"numbers", "1."},
    {"underscores", "www.a_"},
    {"ats", "@"},
    {"names", "a@"},
    {"schemes", "://"},
    {"brackets", "("},
    {"unknown domains", "a.zz "},
    {"international", "\u00fc.zz "},
    {"closing brackets", ")", "http://a.com/"},
};

void check(benchmark::State& state, const std::string& text) {
  const auto detector = makeLinkDetector();
  while (state.KeepRunning()) benchmark::DoNotOptimize(isValidURLAddress(text, *detector));
}

void everyByte(benchmark::State& state, const std::string& text) {
  while (state.KeepRunning()) {
    const char* bytes = text.data();
    benchmark::DoNotOptimize(bytes);
    benchmark::DoNotOptimize(std::memchr(bytes, '\x01', text.size()));
  }
}

int linksIn(std::u16string_view text, const LinkDetector& detector) {
  int count = 0;
  while (const auto match = detector.firstMatch(text, text.size())) {
    text.remove_prefix(match->location + match->length);
    ++count;
  }
  return count;
}

void everyLink(benchmark::State& state, const std::string& text) {
  const auto detector = makeLinkDetector();
  while (state.KeepRunning()) benchmark::DoNotOptimize(linksIn(utf16(text), *detector));
}

int autolinksIn(const std::string& text) {
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

void everyAutolink(benchmark::State& state, const std::string& text) {
  cmark_gfm_core_extensions_ensure_registered();
  while (state.KeepRunning()) benchmark::DoNotOptimize(autolinksIn(text));
}

BENCHMARK_CAPTURE(check, typed, kLocation)->Name("typed/ours");
BENCHMARK_CAPTURE(everyByte, typed, kLocation)->Name("typed/floor");
BENCHMARK_CAPTURE(everyAutolink, typed, kLocation)->Name("typed/cmark-gfm");
BENCHMARK_CAPTURE(everyLink, prose, kProse)->Name("megabyte/ours");
BENCHMARK_CAPTURE(everyByte, prose, kProse)->Name("megabyte/floor");
BENCHMARK_CAPTURE(everyAutolink, prose, kProse)->Name("megabyte/cmark-gfm");

const bool registered = [] {
  for (const HostileText& hostile : kHostileTexts) {
    const std::string name = std::string("/") + hostile.name;
    const std::string text = repeated(hostile.piece, 10'000, hostile.beginning);
    const std::string longText = repeated(hostile.piece, 100'000, hostile.beginning);
    benchmark::RegisterBenchmark(("hostile/ours" + name).c_str(), everyLink, text);
    benchmark::RegisterBenchmark(("hostile/cmark-gfm" + name).c_str(), everyAutolink, text);
    benchmark::RegisterBenchmark(("ten times longer/ours" + name).c_str(), everyLink, longText);
  }
  return true;
}();

}  // namespace
}  // namespace launcher
