// Works out what is covered and walks the chain of controls.
#include "window/focus_keeper.h"

#include <QRegion>
#include <QScrollArea>
#include <algorithm>

namespace vorlund {

namespace {

qint64 area(const QRegion& region) {
  qint64 pixels = 0;
  for (const QRect& rect : region) pixels += qint64{rect.width()} * rect.height();
  return pixels;
}

/// The scrolled area that the control stands in, or the control itself.
const QWidget* what_scrolls(const QWidget& control) {
  const QWidget* found = &control;
  for (const QWidget* parent = control.parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
    if (const auto* scrolled = qobject_cast<const QScrollArea*>(parent)) found = scrolled->viewport();
  }
  return found;
}

bool takes_focus(const QWidget& control) {
  return control.isEnabled() && control.isVisible() && (control.focusPolicy() & Qt::TabFocus) != 0 &&
         is_seen(control);
}

void focus(QWidget& control, Qt::FocusReason reason) {
  control.setFocus(reason);
  for (QWidget* parent = control.parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
    if (auto* scrolled = qobject_cast<QScrollArea*>(parent)) scrolled->ensureWidgetVisible(&control);
  }
}

bool holds(const QWidget& pane, const QWidget* control) {
  return control != nullptr && (control == &pane || pane.isAncestorOf(control));
}

}  // namespace

bool is_seen(const QWidget& control) {
  const QWidget* window = control.window();
  const QWidget* shown = what_scrolls(control);
  if (!control.isVisible()) return false;
  const QRect whole(shown->mapTo(window, QPoint()), shown->size());
  QRegion seen(whole & window->rect());
  const QWidget* outermost = shown;
  for (const QWidget* parent = shown->parentWidget(); parent != window && parent != nullptr;
       parent = parent->parentWidget()) {
    seen &= QRect(parent->mapTo(window, QPoint()), parent->size());
    outermost = parent;
  }
  // Children stand in their parent's list from back to front.
  const QObjectList& children = window->children();
  for (auto above = children.indexOf(outermost) + 1; above < children.size(); ++above) {
    const auto* other = qobject_cast<const QWidget*>(children[above]);
    if (other != nullptr && other->isVisible() && !other->isWindow()) seen -= other->geometry();
  }
  return !whole.isEmpty() && 2 * area(seen) >= area(whole);
}

QWidget* FocusKeeper::first_in(const QWidget& pane) const {
  for (QWidget* control = pane.nextInFocusChain(); control != &pane; control = control->nextInFocusChain()) {
    if (pane.isAncestorOf(control) && takes_focus(*control)) return control;
  }
  return nullptr;
}

void FocusKeeper::follow(const std::vector<QWidget*>& shown) {
  const auto is_shown = [&shown](const QWidget* pane) {
    return std::find(shown.begin(), shown.end(), pane) != shown.end();
  };
  QWidget* const front_before = shown_.empty() ? nullptr : shown_.back();
  QWidget* const front = shown.empty() ? nullptr : shown.back();
  shown_ = shown;

  QWidget* wanted = nullptr;
  if (front_before != nullptr && !is_shown(front_before)) {
    QWidget* before = focus_before_[front_before];
    const bool in_front = before != nullptr && (front == nullptr || holds(*front, before));
    if (in_front && takes_focus(*before)) wanted = before;
  }
  std::erase_if(focus_before_, [&](const auto& remembered) { return !is_shown(remembered.first); });
  QWidget* const focused = window_.focusWidget();
  if (front != nullptr && front != front_before && !holds(*front, focused) && wanted == nullptr) {
    focus_before_.try_emplace(front, focused);
    wanted = first_in(*front);
  }
  if (wanted == nullptr && focused != nullptr && !takes_focus(*focused)) {
    wanted = front != nullptr ? first_in(*front) : nullptr;
    if (wanted == nullptr) {
      step(true);
      return;
    }
  }
  if (wanted != nullptr) focus(*wanted, Qt::OtherFocusReason);
}

bool FocusKeeper::step(bool forward) {
  QWidget* const start = window_.focusWidget() != nullptr ? window_.focusWidget() : &window_;
  const auto next = [forward](const QWidget* control) {
    return forward ? control->nextInFocusChain() : control->previousInFocusChain();
  };
  for (QWidget* control = next(start); control != start; control = next(control)) {
    if (!takes_focus(*control)) continue;
    focus(*control, forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
  }
  if (!takes_focus(*start)) start->clearFocus();
  return false;
}

}  // namespace vorlund
