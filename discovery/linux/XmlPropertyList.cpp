#include "discovery/linux/XmlPropertyList.h"

#include <QtCore/QBuffer>
#include <QtCore/QXmlStreamReader>
#include <algorithm>
#include <string>
#include <utility>

#include "discovery/PropertyListLimits.h"
#include "discovery/linux/XmlEncoding.h"
#include "discovery/linux/XmlLeaves.h"

namespace launcher {
namespace {

/// Refuses what would cost the parser much time or memory: it compares each attribute of a tag with
/// all the others, and keeps declarations.
void checkMarkup(std::string_view document) {
  for (const char* declaration : {"<!ATTLIST", "<!ENTITY", "<!NOTATION"}) {
    if (document.find(declaration) == std::string_view::npos) continue;
    throw UnreadableList("a document type with declarations");
  }
  constexpr std::ptrdiff_t kMostAttributes = 10'000;
  if (std::ranges::count(document, '=') <= kMostAttributes) return;
  throw UnreadableList("too many attributes");
}

/// Reads one element after another and makes the value.
class XmlReader {
 public:
  explicit XmlReader(QIODevice* document) : xml_(document) { xml_.setNamespaceProcessing(false); }

  /// The only value in the document, or in a `plist` at `depth`.
  PropertyList readOnlyValue(int depth = 0) {
    PropertyList::Array values = readValues(depth);
    if (values.size() != 1) throw UnreadableList("no value, or more than one");
    return std::move(values.front());
  }

 private:
  PropertyList readValue(int depth) {
    checkDepth(depth);
    count(valueMemory(0));
    const QStringView name = xml_.qualifiedName();
    if (name == u"plist") return readOnlyValue(depth);
    if (name == u"dict") return readDictionary(depth);
    if (name == u"array") return {readValues(depth)};
    if (name == u"key" || name == u"string") return {readText()};
    if (name == u"integer") return other(isInteger(readText()), "no integer");
    if (name == u"real") return other(isReal(readText()), "no real number");
    if (name == u"date") return other(isDate(readText()), "no date");
    if (name == u"data") return skipText();
    if (name == u"true" || name == u"false") return other(!nextElement(), "more than a constant");
    throw UnreadableList("an unknown element");
  }

  PropertyList::Array readValues(int depth) {
    PropertyList::Array values;
    while (nextElement()) values.push_back(readValue(depth + 1));
    return values;
  }

  /// Of two equal keys, XML keeps the last, our dictionary the first.
  PropertyList readDictionary(int depth) {
    PropertyList::Dictionary entries;
    while (nextElement()) {
      if (xml_.qualifiedName() != u"key") throw UnreadableList("a value without a key");
      count(valueMemory(0));
      std::string key = readText();
      if (!nextElement()) throw UnreadableList("a key without a value");
      entries.emplace_back(std::move(key), readValue(depth + 1));
    }
    std::reverse(entries.begin(), entries.end());
    return {std::move(entries)};
  }

  std::string readText() {
    std::string text;
    while (next() == QXmlStreamReader::Characters) {
      const std::string part = xml_.text().toUtf8().toStdString();
      count(part.size());
      text += part;
    }
    if (!xml_.isEndElement()) throw UnreadableList("an element or a comment in a text");
    return text;
  }

  PropertyList skipText() {
    readText();
    return {};
  }

  /// Checks what nobody reads, so that every platform accepts the same lists.
  static PropertyList other(bool isValid, const char* error) {
    if (!isValid) throw UnreadableList(error);
    return {};
  }

  /// Goes on to the next element inside the open one. Tells whether there is one.
  bool nextElement() {
    while (next() != QXmlStreamReader::StartElement) {
      if (xml_.isEndElement() || xml_.isEndDocument()) return false;
      if (!xml_.isCharacters() || xml_.isWhitespace()) continue;
      throw UnreadableList("a text where elements belong");
    }
    return true;
  }

  QXmlStreamReader::TokenType next() {
    xml_.readNext();
    if (xml_.hasError()) throw UnreadableList(xml_.errorString().toStdString());
    if (xml_.isEntityReference()) throw UnreadableList("an unknown entity");
    if (xml_.isDTD() && xml_.text().contains(u'[')) {
      throw UnreadableList("a document type with declarations");
    }
    return xml_.tokenType();
  }

  void count(std::size_t memory) {
    memory_ += memory;
    checkMemory(memory_);
  }

  QXmlStreamReader xml_;
  std::size_t memory_ = 0;
};

}  // namespace

PropertyList readXmlPropertyList(std::string_view bytes) {
  const std::string text = inUtf8(bytes);
  checkMarkup(text);
  QBuffer document;
  document.setData(QByteArray::fromRawData(text.data(), std::ssize(text)));
  document.open(QIODevice::ReadOnly);
  return XmlReader(&document).readOnlyValue();
}

}  // namespace launcher
