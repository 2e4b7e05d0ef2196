// Places the group labels in columns and paints each on a plate.
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>

#include "window/entry_model.h"
#include "window/theme.h"
#include "window/views.h"

namespace vorlund {

namespace {

constexpr int kColumn = 200;  // pixels from the left of a label to that of its right neighbour
constexpr int kStep = 33;
constexpr QSize kPlate{187, 28};

/// Paints a label as the main menu's are.
class PlateDelegate : public QStyledItemDelegate {
 public:
  explicit PlateDelegate(QAbstractItemView& view) : QStyledItemDelegate(&view), view_(view) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const bool lit = option.state.testFlag(QStyle::State_MouseOver);
    const bool framed = view_.hasFocus() && index == view_.currentIndex();
    const bool marked = index.data(EntryModel::kMarkedRole).toBool();
    const QRect plate(option.rect.topLeft(), kPlate);
    theme::draw_plate(*painter, plate, lit ? theme::kPlateHover : theme::kPlate,
                      framed ? theme::kAccent : theme::kPlateEdge);
    QFont font = option.font;
    font.setBold(marked);
    painter->setFont(font);
    painter->setPen(marked ? index.data(Qt::ForegroundRole).value<QColor>() : theme::kText);
    const int margin = option.fontMetrics.height() * 2 / 3;
    const QRect room = plate.adjusted(margin, 0, -margin, 0);
    painter->drawText(
        room, Qt::AlignVCenter | Qt::AlignLeft,
        painter->fontMetrics().elidedText(index.data().toString(), Qt::ElideRight, room.width()));
  }
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
    return {kColumn, kStep};
  }

 private:
  const QAbstractItemView& view_;
};

/// Labels in one column, as the window object has placed them.
int labels_in_column(const std::vector<Label>& labels) {
  const auto next = std::find_if(labels.begin(), labels.end(), [&labels](const Label& label) {
    return label.place.left != labels.front().place.left;
  });
  return static_cast<int>(next - labels.begin());
}

/// View of the label array `Label1`.
class GroupLabelsView : public PaneView {
 public:
  GroupLabelsView(Form1& form, const Perform& perform, QWidget* parent);

  void apply() override;

 private:
  QWidget* parent_;
  ListView* labels_;
  PaneMode mode_ = PaneMode::kAircraftSet;
};

GroupLabelsView::GroupLabelsView(Form1& form, const Perform& perform, QWidget* parent)
    : PaneView(form, perform), parent_(parent) {
  stand_on(parent);
  static constexpr int kNone = -1;
  labels_ = labels("Label1", "Groups", form.selection.Label1, kNone, form.selection.found_groups,
                   &Form1::Label1_Click);
  labels_->setItemDelegate(new PlateDelegate(*labels_));
  labels_->setToolTip("A click opens the group; what is typed finds one");
  labels_->setFlow(QListView::TopToBottom);
  labels_->setWrapping(true);
  labels_->setResizeMode(QListView::Adjust);
  labels_->stand_on_picture();
  labels_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  labels_->setHorizontalScrollMode(QListView::ScrollPerPixel);
  labels_->hide();
}

void GroupLabelsView::apply() {
  const std::vector<Label>& shown = form_.selection.Label1;
  const bool any = std::any_of(shown.begin(), shown.end(), [](const Label& label) { return label.visible; });
  const QPoint origin = theme::pixels(shown.front().place).topLeft();
  const int scroll_bar = labels_->horizontalScrollBar()->sizeHint().height() + 4;
  // They were placed in columns for the height that the window had then.
  const int room = theme::pixels(form_.selection.screen).height() - origin.y();
  const int wanted = labels_in_column(shown) * kStep + scroll_bar;
  labels_->setGeometry(origin.x(), origin.y(), parent_->width() - origin.x() - 14, std::min(wanted, room));
  // Groups that were opened by the menu can be typed into at once.
  const bool opened = any && (labels_->isHidden() || mode_ != form_.selection.mode);
  mode_ = form_.selection.mode;
  labels_->setVisible(any);
  PaneView::apply();
  if (opened) labels_->setFocus(Qt::OtherFocusReason);
}

}  // namespace

std::unique_ptr<PaneView> group_labels_view(Form1& form, const Perform& perform, QWidget* parent) {
  return std::make_unique<GroupLabelsView>(form, perform, parent);
}

}  // namespace vorlund
