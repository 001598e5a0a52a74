#pragma once

#include <QLabel>
#include <QStringList>

namespace launcher {

/// A text of up to two lines that a screen reader speaks whenever it changes.
class StatusLine : public QLabel {
 public:
  /// Shows the first of `texts`. Makes it wide enough for each of them in two lines.
  explicit StatusLine(QStringList texts);

  /// Shows a text. A screen reader speaks it if it differs from the last one.
  void say(const QString& text);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  bool hasHeightForWidth() const override { return false; }

 private:
  QStringList texts_;
};

}  // namespace launcher
