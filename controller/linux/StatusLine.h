#pragma once

#include <QLabel>
#include <QStringList>

namespace launcher {

/// A text of up to two lines, which a screen reader says aloud whenever it changes.
class StatusLine : public QLabel {
 public:
  /// It is as wide as the longest of `texts` needs for two lines.
  explicit StatusLine(QStringList texts);

  /// Shows a text, and has a screen reader say it where it is another than before.
  void say(const QString& text);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  bool hasHeightForWidth() const override { return false; }

 private:
  QStringList texts_;
};

}  // namespace launcher
