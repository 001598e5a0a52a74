#pragma once

#include <QColor>
#include <QLineEdit>
#include <optional>

namespace launcher {

/// A text field for an address: a rounded border, which shows the focus, and a background that may
/// say something about the text. Takes a text of any length, and of several lines, which it joins:
/// line breaks would not be seen.
class AddressField : public QLineEdit {
 public:
  /// `placeholder` is shown while the field is empty.
  explicit AddressField(const QString& placeholder);

  /// The colour behind the text, which is black on it whatever the desktop's own colours are.
  /// Until one is given the window shows through.
  void setBackground(const QColor& colour);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void blackenText();

  std::optional<QColor> background_;
};

}  // namespace launcher
