// Interfaces for widgets whose class does not tell their role.
#include "window/accessibility.h"

#include <QAccessibleWidget>
#include <functional>
#include <utility>

#include "window/choice_view.h"
#include "window/pane_frame.h"
#include "window/picture_view.h"

namespace vorlund {

namespace {

/// A widget that is pressed as a button is.
class PressedInterface : public QAccessibleWidget {
 public:
  PressedInterface(QWidget& widget, QAccessible::Role role, std::function<void()> press)
      : QAccessibleWidget(&widget, role), press_(std::move(press)) {}

  [[nodiscard]] QStringList actionNames() const override {
    return QAccessibleWidget::actionNames() << QAccessibleActionInterface::pressAction();
  }
  void doAction(const QString& action) override {
    action == QAccessibleActionInterface::pressAction() ? press_() : QAccessibleWidget::doAction(action);
  }
  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State now = QAccessibleWidget::state();
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget())) {
      now.checkable = button->isCheckable();
      now.checked = button->isChecked();
    }
    return now;
  }

 private:
  std::function<void()> press_;
};

QAccessibleInterface* interface_for(const QString&, QObject* object) {
  if (auto* pane = dynamic_cast<PaneFrame*>(object))
    return new QAccessibleWidget(pane, QAccessible::Grouping);
  // The model alone says which is set, so that Qt knows of no group and would take them for check boxes.
  if (auto* option = dynamic_cast<OptionButton*>(object)) {
    return new PressedInterface(*option, QAccessible::RadioButton, [option] { option->click(); });
  }
  auto* picture = dynamic_cast<PictureView*>(object);
  if (picture == nullptr) return nullptr;
  if (picture->focusPolicy() == Qt::NoFocus) return new QAccessibleWidget(picture, QAccessible::Graphic);
  return new PressedInterface(*picture, QAccessible::Button, [picture] {
    if (picture->on_click) picture->on_click();
  });
}

}  // namespace

void speak_to_assistive_tools() {
  QAccessible::installFactory(interface_for);
}

}  // namespace vorlund
