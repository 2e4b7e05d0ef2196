// Interfaces for widgets whose class says nothing of their role.
#include "window/accessibility.h"

#include <QAccessibleWidget>

#include "window/pane_frame.h"
#include "window/picture_view.h"

namespace vorlund {

namespace {

/// A picture that acts as a button does.
class PictureInterface : public QAccessibleWidget {
 public:
  explicit PictureInterface(PictureView& view) : QAccessibleWidget(&view, QAccessible::Button), view_(view) {}

  QStringList actionNames() const override {
    return QAccessibleWidget::actionNames() << QAccessibleActionInterface::pressAction();
  }
  void doAction(const QString& action) override {
    if (action == QAccessibleActionInterface::pressAction()) {
      if (view_.on_click) view_.on_click();
    } else {
      QAccessibleWidget::doAction(action);
    }
  }

 private:
  PictureView& view_;
};

QAccessibleInterface* interface_for(const QString&, QObject* object) {
  if (auto* pane = dynamic_cast<PaneFrame*>(object))
    return new QAccessibleWidget(pane, QAccessible::Grouping);
  auto* picture = dynamic_cast<PictureView*>(object);
  if (picture == nullptr) return nullptr;
  if (picture->focusPolicy() == Qt::NoFocus) return new QAccessibleWidget(picture, QAccessible::Graphic);
  return new PictureInterface(*picture);
}

}  // namespace

void speak_to_assistive_tools() {
  QAccessible::installFactory(interface_for);
}

}  // namespace vorlund
