// Shows a check box or an option button of the model, which alone says whether it is set.
#pragma once

#include <QCheckBox>
#include <QRadioButton>
#include <functional>

#include "panes/controls.h"

namespace vorlund {

/// Paints a choice: a mark that stands out on every ground, and its caption.
void paint_choice(QAbstractButton& button);

/// A button that a click does not set by itself: the click is handed back, and `apply` shows what came of it.
template <class Button>
class ChoiceView : public Button {
 public:
  ChoiceView(const QString& name, QWidget* parent) : Button(parent) {
    this->setObjectName(name);
    this->setCursor(Qt::PointingHandCursor);
    this->setAutoExclusive(false);
    this->setAttribute(Qt::WA_Hover);
    this->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    QObject::connect(this, &QAbstractButton::clicked, this, [this] {
      if (on_click) on_click();
    });
  }

  std::function<void()> on_click;

  void apply(const Choice& choice) {
    const QString caption = QString::fromStdString(choice.caption);
    if (this->text() != caption) {
      this->setText(caption);
      this->setAccessibleName(caption);
    }
    this->setChecked(choice.checked);
  }

  [[nodiscard]] QSize sizeHint() const override {
    const QFontMetrics metrics = this->fontMetrics();
    return {metrics.horizontalAdvance(this->text()) + metrics.height() * 2, metrics.height() * 3 / 2};
  }
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent*) override { paint_choice(*this); }
  void nextCheckState() override {}
  [[nodiscard]] bool hitButton(const QPoint& point) const override { return this->rect().contains(point); }
};

using OptionButton = ChoiceView<QRadioButton>;
using CheckBox = ChoiceView<QCheckBox>;

}  // namespace vorlund
