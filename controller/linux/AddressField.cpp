#include "controller/linux/AddressField.h"

#include <QPainter>
#include <QRegularExpression>
#include <QValidator>
#include <limits>

namespace launcher {
namespace {

constexpr qreal borderWidth = 1;
constexpr qreal cornerRadius = 5;
constexpr qreal focusWidth = 2;

/// Accepts every text and removes its line breaks.
class OneLine : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString& text, int& cursor) const override {
    static const QRegularExpression lineBreaks(QStringLiteral("[\\n\\r\\x{2028}\\x{2029}]"));
    cursor = static_cast<int>(text.left(cursor).remove(lineBreaks).size());
    text.remove(lineBreaks);
    return Acceptable;
  }
};

/// Lets the window show through. The placeholder gets the text's colour, since its own is not
/// readable on every desktop's dark window.
QPalette withoutBackground(QPalette palette) {
  QColor pale = palette.color(QPalette::WindowText);
  pale.setAlphaF(0.5F);
  palette.setColor(QPalette::PlaceholderText, pale);
  palette.setBrush(QPalette::Base, Qt::transparent);
  return palette;
}

}  // namespace

AddressField::AddressField(const QString& placeholder) {
  setPlaceholderText(placeholder);
  setMaxLength(std::numeric_limits<int>::max());
  setValidator(new OneLine(this));
  setFrame(false);
  setPalette(withoutBackground(palette()));
  constexpr int margin = 6;
  setTextMargins(margin, margin, margin, margin);
}

void AddressField::setBackground(const QColor& colour) {
  if (background_ == colour) return;
  background_ = colour;
  QPalette readable = palette();
  readable.setColor(QPalette::Text, Qt::black);
  readable.setColor(QPalette::PlaceholderText, Qt::darkGray);
  setPalette(readable);
  update();
}

/// Draws the border and the background, then the text above them.
void AddressField::paintEvent(QPaintEvent* event) {
  {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto inside = [this](qreal by) { return QRectF(rect()).adjusted(by, by, -by, -by); };
    if (hasFocus()) {
      constexpr qreal radius = cornerRadius + focusWidth / 2;
      painter.setPen(QPen(palette().color(QPalette::Highlight), focusWidth));
      painter.drawRoundedRect(inside(focusWidth / 2), radius, radius);
    }
    painter.setPen(QPen(Qt::black, borderWidth));
    painter.setBrush(background_ ? QBrush(*background_) : QBrush());
    painter.drawRoundedRect(inside(focusWidth + borderWidth / 2), cornerRadius, cornerRadius);
  }
  QLineEdit::paintEvent(event);
}

}  // namespace launcher
