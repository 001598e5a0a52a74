#include "controller/linux/StatusLine.h"

#include <QAccessibleWidget>
#include <algorithm>
#include <limits>
#include <utility>

namespace launcher {
namespace {

constexpr int lines = 2;

/// The narrowest width, to about a character, in which a text fits into its lines.
int neededWidth(const QString& text, const QFontMetrics& metrics) {
  const auto height = [&](int width) {
    const QRect room(0, 0, width, std::numeric_limits<int>::max());
    return metrics.boundingRect(room, Qt::TextWordWrap, text).height();
  };
  const int inOneLine = metrics.horizontalAdvance(text);
  int width = inOneLine / lines;
  while (width < inOneLine && height(width) > lines * metrics.lineSpacing()) {
    width += std::max(metrics.averageCharWidth(), 1);
  }
  return width;
}

/// Screen readers speak a notification when it appears, but a label only on request.
QAccessibleInterface* makeNotification(const QString&, QObject* object) {
  auto* line = dynamic_cast<StatusLine*>(object);
  return line == nullptr ? nullptr : new QAccessibleWidget(line, QAccessible::Notification);
}

}  // namespace

StatusLine::StatusLine(QStringList texts) : texts_(std::move(texts)) {
  QAccessible::installFactory(makeNotification);
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  say(texts_.front());
}

void StatusLine::say(const QString& text) {
  if (text == this->text()) return;
  setText(text);
  setAccessibleName(text);
  QAccessibleEvent shown(this, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&shown);
}

QSize StatusLine::sizeHint() const { return minimumSizeHint(); }

QSize StatusLine::minimumSizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  int width = 0;
  for (const QString& text : texts_) width = std::max(width, neededWidth(text, metrics));
  return {width, lines * metrics.lineSpacing()};
}

}  // namespace launcher
