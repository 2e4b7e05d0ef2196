// Shows a check box or an option button of the model, which alone says whether it is set.
#pragma once

#include <QCheckBox>
#include <QRadioButton>
#include <functional>

#include "core/controls.h"

namespace vorlund {

/// A button that a click does not set by itself: the click is handed back, and `apply` shows what came of it.
template <class Button>
class ChoiceView : public Button {
 public:
  ChoiceView(const QString& name, QWidget* parent) : Button(parent) {
    this->setObjectName(name);
    this->setCursor(Qt::PointingHandCursor);
    this->setAutoExclusive(false);
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

 protected:
  void nextCheckState() override {}
  bool hitButton(const QPoint& point) const override { return this->rect().contains(point); }
};

using OptionButton = ChoiceView<QRadioButton>;
using CheckBox = ChoiceView<QCheckBox>;

}  // namespace vorlund
