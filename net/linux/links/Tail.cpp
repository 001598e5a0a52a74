#include "net/linux/links/Tail.h"

#include "base/CodePoints.h"
#include "net/linux/links/Traits.h"

namespace launcher::links {
namespace {

/// Counts the open brackets of one kind.
class Brackets {
 public:
  Brackets(char32_t opening, char32_t closing) : opening_(opening), closing_(closing) {}

  /// Counts a character. False for a closing bracket without an opening one.
  bool take(char32_t point) {
    if (point == opening_) ++open_;
    if (point != closing_) return true;
    if (open_ == 0) return false;
    --open_;
    return true;
  }

 private:
  char32_t opening_;
  char32_t closing_;
  std::size_t open_ = 0;
};

bool canBeginTail(char16_t unit) { return unit == u'/' || unit == u'?' || unit == u'#'; }

}  // namespace

std::size_t skipTail(std::u16string_view text, std::size_t at) {
  if (at == text.size() || !canBeginTail(text[at])) return at;
  Brackets round(U'(', U')');
  Brackets square(U'[', U']');
  std::size_t end = at;
  while (at < text.size()) {
    const CodePoint point = firstCodePoint(text.substr(at));
    if (!point.value || !has(*point.value, inTail)) break;
    if (!round.take(*point.value) || !square.take(*point.value)) break;
    at += point.length;
    if (has(*point.value, atEnd)) end = at;
  }
  return end;
}

}  // namespace launcher::links
