#include "discovery/linux/XmlPropertyList.h"

#include <expat.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <exception>
#include <functional>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "discovery/PropertyListLimits.h"
#include "discovery/linux/XmlEncoding.h"
#include "discovery/linux/XmlLeaves.h"

namespace launcher {
namespace {

enum class Kind { list, array, dictionary, key, text, integer, real, date, data, constant };

Kind kindOf(std::string_view name) {
  constexpr std::array<std::pair<std::string_view, Kind>, 11> kKinds = {{{"key", Kind::key},
                                                                         {"string", Kind::text},
                                                                         {"dict", Kind::dictionary},
                                                                         {"array", Kind::array},
                                                                         {"integer", Kind::integer},
                                                                         {"real", Kind::real},
                                                                         {"date", Kind::date},
                                                                         {"data", Kind::data},
                                                                         {"true", Kind::constant},
                                                                         {"false", Kind::constant},
                                                                         {"plist", Kind::list}}};
  for (const auto& [known, kind] : kKinds) {
    if (name == known) return kind;
  }
  throw UnreadableList("an unknown element");
}

/// An open element, and its content so far.
struct Element {
  explicit Element(Kind elementKind) : kind(elementKind) {}

  Kind kind;
  std::string text;
  PropertyList::Array values;
  std::optional<std::string> key;  ///< set while its value is still to come
  PropertyList::Dictionary entries;

  bool holdsElements() const {
    return kind == Kind::list || kind == Kind::array || kind == Kind::dictionary;
  }

  bool holdsText() const { return !holdsElements() && kind != Kind::constant; }

  void add(Kind childKind, PropertyList value) {
    if (kind != Kind::dictionary) {
      values.push_back(std::move(value));
    } else if (key) {
      entries.emplace_back(std::move(*key), std::move(value));
      key.reset();
    } else if (childKind == Kind::key) {
      key = *value.text();
    } else {
      throw UnreadableList("a value without a key");
    }
  }

  PropertyList takeValue() {
    switch (kind) {
      case Kind::list:
        return takeOnlyValue();
      case Kind::array:
        return {std::move(values)};
      case Kind::dictionary:
        return takeDictionary();
      case Kind::key:
      case Kind::text:
        return {std::move(text)};
      default:
        checkOther();
        return {};
    }
  }

  PropertyList takeOnlyValue() {
    if (values.size() != 1) throw UnreadableList("no value, or more than one");
    return std::move(values.front());
  }

  /// Of two equal keys, XML keeps the last, our dictionary the first.
  PropertyList takeDictionary() {
    if (key) throw UnreadableList("a key without a value");
    std::reverse(entries.begin(), entries.end());
    return {std::move(entries)};
  }

  /// Checks numbers and dates although nobody reads them, so that every platform accepts the same
  /// lists.
  void checkOther() const {
    if (kind == Kind::integer && !isInteger(text)) throw UnreadableList("no integer");
    if (kind == Kind::real && !isReal(text)) throw UnreadableList("no real number");
    if (kind == Kind::date && !isDate(text)) throw UnreadableList("no date");
  }
};

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

/// Takes the parser's events one after another and makes the value.
class XmlReader {
 public:
  void begin(std::string_view name) {
    if (!open_.back().holdsElements()) throw UnreadableList("an element in one that holds none");
    checkDepth(static_cast<int>(open_.size()));
    count(valueMemory(0));
    open_.emplace_back(kindOf(name));
  }

  void addText(std::string_view text) {
    Element& element = open_.back();
    if (element.holdsText()) {
      count(text.size());
      element.text += text;
    } else if (!std::all_of(text.begin(), text.end(), isBlank)) {
      throw UnreadableList("a text where elements belong");
    }
  }

  void end() {
    const Kind kind = open_.back().kind;
    PropertyList value = open_.back().takeValue();
    open_.pop_back();
    open_.back().add(kind, std::move(value));
  }

  /// Called at a comment or a processing instruction.
  void interrupt() {
    if (open_.back().holdsText()) throw UnreadableList("a comment in a text");
  }

  PropertyList takeValue() { return open_.back().takeOnlyValue(); }

 private:
  void count(std::size_t memory) {
    memory_ += memory;
    checkMemory(memory_);
  }

  std::vector<Element> open_{Element(Kind::list)};  ///< the first element is the document
  std::size_t memory_ = 0;
};

void* frugalRealloc(void* block, std::size_t size) {
  constexpr std::size_t kLargestBlock = 1U << 20U;
  return size > kLargestBlock ? nullptr : std::realloc(block, size);
}

/// The parser itself needs little memory, except for documents made to exhaust it: endless
/// attributes, a comment of megabytes. For those it reports a lack of memory.
constexpr XML_Memory_Handling_Suite kFrugalMemory = {
    [](std::size_t size) { return frugalRealloc(nullptr, size); }, frugalRealloc, std::free};

/// Passes the parser's events to a reader. No exception may pass through the parser, which is C.
class Parsing {
 public:
  Parsing() {
    if (!parser_) throw std::bad_alloc();
    XML_SetUserData(parser_.get(), this);
    XML_SetElementHandler(
        parser_.get(),
        [](void* self, const XML_Char* name, const XML_Char**) {
          handle(self, [name](XmlReader& reader) { reader.begin(name); });
        },
        [](void* self, const XML_Char*) { handle(self, &XmlReader::end); });
    XML_SetCharacterDataHandler(parser_.get(), [](void* self, const XML_Char* text, int size) {
      handle(self, [&](XmlReader& reader) {
        reader.addText({text, static_cast<std::size_t>(size)});
      });
    });
    XML_SetCommentHandler(parser_.get(),
                          [](void* self, const XML_Char*) { handle(self, &XmlReader::interrupt); });
    XML_SetProcessingInstructionHandler(
        parser_.get(),
        [](void* self, const XML_Char*, const XML_Char*) { handle(self, &XmlReader::interrupt); });
    refuseEntities();
  }

  /// Parses in pieces, since the parser copies its input.
  PropertyList read(std::string_view document) {
    constexpr std::size_t kPiece = 64U << 10U;
    do {
      const std::string_view piece = document.substr(0, kPiece);
      document.remove_prefix(piece.size());
      parse(piece, document.empty());
    } while (!document.empty());
    return reader_.takeValue();
  }

 private:
  void parse(std::string_view piece, bool isLast) {
    const XML_Status status =
        XML_Parse(parser_.get(), piece.data(), static_cast<int>(piece.size()), isLast ? 1 : 0);
    if (failure_) std::rethrow_exception(failure_);
    if (status == XML_STATUS_OK) return;
    throw UnreadableList(XML_ErrorString(XML_GetErrorCode(parser_.get())));
  }

  void refuseEntities() {
    XML_SetStartDoctypeDeclHandler(parser_.get(), [](void* self, const XML_Char*, const XML_Char*,
                                                     const XML_Char*, int declares) {
      handle(self, [declares](XmlReader&) {
        if (declares != 0) throw UnreadableList("a document type with declarations");
      });
    });
    XML_SetSkippedEntityHandler(parser_.get(), [](void* self, const XML_Char*, int) {
      handle(self, [](XmlReader&) { throw UnreadableList("an unknown entity"); });
    });
  }

  template <class Action>
  static void handle(void* self, Action action) {
    Parsing& parsing = *static_cast<Parsing*>(self);
    if (parsing.failure_) return;
    try {
      std::invoke(action, parsing.reader_);
    } catch (...) {
      parsing.failure_ = std::current_exception();
      XML_StopParser(parsing.parser_.get(), XML_FALSE);
    }
  }

  XmlReader reader_;
  std::exception_ptr failure_;
  std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser_{
      XML_ParserCreate_MM("UTF-8", &kFrugalMemory, nullptr), XML_ParserFree};
};

}  // namespace

PropertyList readXmlPropertyList(std::string_view bytes) {
  std::string converted;
  return Parsing().read(inUtf8(bytes, converted));
}

}  // namespace launcher
