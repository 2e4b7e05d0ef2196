// Lays out and sizes the foot of the window.
#include "window/status_bar.h"

#include <QHBoxLayout>
#include <algorithm>

#include "window/theme.h"

namespace vorlund {

namespace {

constexpr int kLeastHeight = 34;
constexpr int kAroundText = 16;  // pixels above and below a text of several lines

}  // namespace

StatusBar::StatusBar(QWidget* parent)
    : QWidget(parent),
      text_(new QLabel(this)),
      progress_text_(new TextLabel("ProgressFile", TextLabel::Tone::kPlain, this)),
      progress_bar_(new QProgressBar(this)),
      help_(new ActionLabel("HelpLabel", ActionLabel::Look::kRow, this)) {
  setStyleSheet("background: #111820;");
  setAttribute(Qt::WA_StyledBackground);
  text_->setObjectName("StatusLine");
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  progress_bar_->setObjectName("Progress");
  progress_bar_->setAccessibleName("Progress");
  progress_bar_->setRange(0, 1000);
  progress_bar_->setTextVisible(false);
  progress_bar_->setFixedSize(240, 14);
  help_->setToolTip("Explains mouse, keys and columns on one page (F1)");
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(18, 0, 18, 0);
  layout->addWidget(text_, 1);
  layout->addWidget(progress_text_, 1);
  layout->addWidget(progress_bar_);
  layout->addWidget(help_);
  end_progress();
}

void StatusBar::say(const QString& text) {
  text_->setText(text);
  text_->setVisible(progress_bar_->isHidden());
  const QSize window = parentWidget()->size();
  const QMargins margins = layout()->contentsMargins();
  const int room =
      window.width() - margins.left() - margins.right() - help_->sizeHint().width() - layout()->spacing();
  const int wanted = text_->isHidden() ? 0 : text_->heightForWidth(room) + kAroundText;
  const int high = std::clamp(wanted, kLeastHeight, std::max(kLeastHeight, window.height() / 2));
  text_->setToolTip(wanted > high ? theme::literal(text) : QString());
  setGeometry(0, window.height() - high, window.width(), high);
}

void StatusBar::show_progress(double fraction, const QString& words) {
  text_->hide();
  progress_bar_->setValue(static_cast<int>(fraction * 1000));
  progress_bar_->show();
  progress_text_->setText(words);
  progress_text_->show();
}

void StatusBar::end_progress() {
  progress_bar_->hide();
  progress_text_->hide();
}

}  // namespace vorlund
