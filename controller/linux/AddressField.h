#pragma once

#include <QColor>
#include <QLineEdit>
#include <optional>

namespace launcher {

/// A text field for an address. Its rounded border shows the focus; its background can show the
/// result of a check. Accepts a text of any length and joins several lines into one, since line
/// breaks would not be seen.
class AddressField : public QLineEdit {
 public:
  /// `placeholder` is shown while the field is empty.
  explicit AddressField(const QString& placeholder);

  /// Sets the colour behind the text, which then is black in any of the desktop's colours. Before
  /// the first call the window shows through.
  void setBackground(const QColor& colour);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::optional<QColor> background_;
};

}  // namespace launcher
