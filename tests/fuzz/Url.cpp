// A URL keeps its text, and what is made of a URL is a URL again.
#include "base/Url.h"

#include <string>

#include "tests/fuzz/Fuzzing.h"

using namespace launcher;
using namespace launcher::fuzzing;

static bool isReadAgain(const Url& url) { return Url::parse(url.absoluteString()) == url; }

static void checkFolders(Url url) {
  for (std::size_t steps = url.absoluteString().size() + 1; steps > 0; --steps) {
    const Url folder = url.deletingLastPathComponent();
    require(isReadAgain(folder), "a folder is a URL");
    require(folder.scheme() == url.scheme() && folder.host() == url.host(),
            "a folder lies on the same host");
    if (folder == url || folder.absoluteString().size() > url.absoluteString().size()) return;
    url = folder;
  }
  require(false, "the way up ends");
}

static void checkFile(std::string_view path) {
  const Url file = Url::ofFile(path);
  require(isReadAgain(file), "a file's URL is one");
  require(file.scheme() == "file", "a file's URL says so");
  const bool plain =
      path.starts_with('/') && !path.ends_with('/') && path.find('\0') == std::string_view::npos;
  require(!plain || file.filePath() == path, "a path comes back");
}

static void checkRepair(std::string_view text) {
  const auto url = Url::parse(text);
  const auto repaired = Url::repaired(text);
  require(!url || repaired == url, "what is a URL stays as it is");
  if (!repaired || url) return;
  require(isReadAgain(*repaired), "what is repaired is a URL");
  require(repaired->host() && !repaired->host()->empty(), "what is repaired has a host");
}

FUZZ_TARGET(text) {
  checkRepair(text);
  if (const auto url = Url::parse(text)) {
    require(url->absoluteString() == text, "a URL keeps its text");
    require(isReadAgain(*url), "a URL is read again");
    require(url->scheme().value_or("x").find(':') == std::string::npos, "no scheme holds a colon");
    use(url->filePath());
    checkFolders(*url);
  }
  checkFile(text);
  checkFile("/" + std::string(text));
}
