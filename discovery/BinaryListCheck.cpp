#include "discovery/BinaryListCheck.h"

#include <cstdint>

#include "discovery/BinaryObjects.h"
#include "discovery/PropertyListLimits.h"

namespace launcher {
namespace {

class Walk {
 public:
  explicit Walk(const ObjectTable& table) : table_(table) {}

  /// Counts a value with everything that it holds. The check of the depth also stops at a list that
  /// refers to itself.
  void visit(std::uint64_t reference, int depth) {
    checkDepth(depth);
    const BinaryObject object = table_.object(reference);
    checkForm(object);
    memory_ += valueMemory(object.content.size());
    checkMemory(memory_);
    for (std::uint64_t index = 0; index < object.items.size(); ++index) {
      visit(object.items[index], depth + 1);
    }
  }

 private:
  /// macOS refuses an empty text in UTF-16: it writes empty texts in ASCII.
  void checkForm(const BinaryObject& object) const {
    if (object.kind == ObjectKind::utf16 && object.content.empty()) {
      throw UnreadableList("an empty text in UTF-16");
    }
    if (object.kind != ObjectKind::dictionary) return;
    for (std::uint64_t key = 0; key < object.items.size() / 2; ++key) {
      if (table_.object(object.items[key]).kind < ObjectKind::array) continue;
      throw UnreadableList("a key that holds values");
    }
  }

  const ObjectTable& table_;
  std::size_t memory_ = 0;
};

}  // namespace

bool isBinaryList(std::string_view bytes) { return bytes.starts_with("bplist0"); }

void checkBinaryList(std::string_view bytes) {
  const ObjectTable table(bytes);
  Walk(table).visit(table.top(), 1);
}

}  // namespace launcher
