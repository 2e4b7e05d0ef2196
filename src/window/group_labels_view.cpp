// Keeps one widget for each group label and places it on a scrolled board.
#include "window/group_labels_view.h"

#include <QScrollBar>
#include <algorithm>

#include "window/theme.h"

namespace vorlund {

GroupLabelsView::GroupLabelsView(Form1& form, const Perform& perform, QWidget* parent)
    : PaneView(form, perform), parent_(parent), area_(new QScrollArea(parent)), board_(new QWidget) {
  area_->setObjectName("GroupLabels");
  area_->setFrameShape(QFrame::NoFrame);
  area_->setFocusPolicy(Qt::NoFocus);
  area_->setWidget(board_);
  area_->viewport()->setAutoFillBackground(false);
  board_->setAutoFillBackground(false);
  area_->hide();
}

void GroupLabelsView::apply() {
  const std::vector<Label>& shown = form_.selection.Label1;
  while (labels_.size() > shown.size()) {
    labels_.back()->deleteLater();
    labels_.back()->hide();
    labels_.back()->setObjectName(QString());
    labels_.pop_back();
  }
  while (labels_.size() < shown.size()) {
    const int index = static_cast<int>(labels_.size());
    auto* label = new ActionLabel(element_name("Label1", index), ActionLabel::Look::kPlate, board_);
    label->on_release = [this, index](const MouseEvent&) { run(&Form1::Label1_Click, index); };
    labels_.push_back(label);
  }
  const QPoint origin = theme::pixels(shown.front().place).topLeft();
  QRect extent;
  bool any = false;
  for (std::size_t index = 0; index < shown.size(); ++index) {
    const QRect place = theme::pixels(shown[index].place).translated(-origin);
    labels_[index]->setGeometry(place);
    labels_[index]->apply(shown[index]);
    extent = extent.united(place);
    any = any || shown[index].visible;
  }
  const int scroll_bar = area_->horizontalScrollBar()->sizeHint().height() + 4;
  board_->resize(extent.size());
  // They were placed in columns for the height that the window had then.
  const int room = theme::pixels(form_.selection.screen).height() - origin.y();
  area_->setGeometry(origin.x(), origin.y(), parent_->width() - origin.x() - 14,
                     std::min(extent.height() + scroll_bar, room));
  area_->setVisible(any);
}

}  // namespace vorlund
