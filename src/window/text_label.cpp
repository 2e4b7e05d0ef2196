// Painting and tooltip of a label that only shows.
#include "window/text_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "window/theme.h"

namespace vorlund {

TextLabel::TextLabel(const QString& name, Tone tone, QWidget* parent) : QLabel(parent) {
  setObjectName(name);
  setTextFormat(Qt::PlainText);
  QFont styled = font();
  styled.setBold(tone == Tone::kStrong || tone == Tone::kHeading);
  if (tone == Tone::kHeading) styled.setPointSizeF(styled.pointSizeF() * 1.35);
  setFont(styled);
  QPalette colours = palette();
  colours.setColor(QPalette::WindowText, tone == Tone::kQuiet ? theme::kQuietText : theme::kText);
  setPalette(colours);
}

void TextLabel::apply(const Label& label) {
  const QString caption = QString::fromStdString(label.caption);
  if (text() != caption) setText(caption);
  setVisible(label.visible);
}

QSize TextLabel::minimumSizeHint() const {
  const QSize whole = QLabel::minimumSizeHint();
  return {std::min(whole.width(), fontMetrics().averageCharWidth() * 6), whole.height()};
}

bool TextLabel::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && fontMetrics().horizontalAdvance(text()) > width()) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), theme::literal(text()), this);
    return true;
  }
  return QLabel::event(event);
}

void TextLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(rect(), static_cast<int>(alignment()),
                   fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}

}  // namespace vorlund
