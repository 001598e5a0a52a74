#include "discovery/linux/XmlEncoding.h"

#include <QtCore/QStringDecoder>
#include <QtCore/QStringEncoder>
#include <QtCore/QXmlStreamReader>
#include <algorithm>

#include "discovery/PropertyListLimits.h"

namespace launcher {
namespace {

QByteArray encodingOf(QByteArrayView document) {
  if (const auto marked = QStringConverter::encodingForData(document)) {
    return QStringConverter::nameForEncoding(*marked);
  }
  constexpr qsizetype kLongestDeclaration = 200;
  const auto beginning = document.first(std::min(document.size(), kLongestDeclaration));
  QXmlStreamReader xml(QString::fromLatin1(beginning));
  xml.readNext();
  if (xml.hasError()) throw UnreadableList(xml.errorString().toStdString());
  return xml.documentEncoding().isEmpty() ? "UTF-8" : xml.documentEncoding().toLatin1();
}

/// Converts in pieces, since Qt's texts are twice as long.
std::string decoded(QByteArrayView document, const QByteArray& encoding) {
  QStringDecoder decode(encoding.constData());
  QStringEncoder encode(QStringEncoder::Utf8);
  std::string text;
  text.reserve(static_cast<std::size_t>(document.size()));
  constexpr qsizetype kPiece = 64 << 10;
  for (; !document.empty(); document = document.sliced(std::min(document.size(), kPiece))) {
    const QString piece = decode(document.first(std::min(document.size(), kPiece)));
    const QByteArray converted = encode(piece);
    text += converted.toStdString();
    if (decode.hasError() || encode.hasError()) {
      throw UnreadableList("bytes that are no " + encoding.toStdString());
    }
    if (text.size() > kMostListBytes) throw UnreadableList("more than 16 MB");
  }
  return text;
}

}  // namespace

std::string inUtf8(std::string_view document) {
  const QByteArrayView bytes = QByteArrayView(document).trimmed();
  std::string text = decoded(bytes, encodingOf(bytes));
  // The parser would take a NUL for a sign of UTF-16.
  if (text.find('\0') != std::string::npos) throw UnreadableList("a NUL in a text");
  // With the declaration the parser would decode the text once more.
  if (text.starts_with("<?xml")) text.erase(0, std::min(text.find("?>"), text.size() - 2) + 2);
  return text;
}

}  // namespace launcher
