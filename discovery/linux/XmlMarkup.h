#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace launcher {

/// The start of an element. One that is closed has neither content nor an end of its own.
struct XmlTag {
  std::string_view name;
  bool closed = false;
};

/// An XML document's markup, consumed from its start. Every operation throws `UnreadableList` where
/// something else comes, and takes time in proportion to what it consumes.
///
/// No document type is fetched, none may contain declarations, and no names are expanded but the
/// five that every document knows. Attributes say nothing about a property list: they are passed
/// over. Comments and processing instructions may stand between elements, not in texts.
class XmlMarkup {
 public:
  /// `document` is UTF-8 and must outlive the tags.
  explicit XmlMarkup(std::string_view document) : rest_(document) {}

  /// Passes over all that may come before the first element.
  void skipProlog();

  /// The start of an element.
  XmlTag takeTag();

  /// The start of the next element inside of another, or absent once that one's end was taken.
  std::optional<XmlTag> takeTagIn(const XmlTag& parent);

  /// The text in an element, references resolved; takes the element's end, too.
  std::string takeTextIn(const XmlTag& tag);

  /// The end of an element that has no content, not even a blank.
  void takeNothingIn(const XmlTag& tag);

  /// Nothing but blanks, comments and instructions, and then the document's end.
  void takeEpilog();

 private:
  bool skip(std::string_view expected);
  void skipBlanks();
  void skipBetweenElements();
  void skipDocumentType();
  void skipUpTo(std::string_view stops);
  void takeEnd(const XmlTag& tag);
  std::string takeReference();
  std::string_view takeCharacters();
  std::string_view takeUntil(std::string_view end);
  template <class Condition>
  std::string_view takeWhile(Condition condition);

  std::string_view rest_;
};

}  // namespace launcher
