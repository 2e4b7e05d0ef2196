// Lays out the selection pane and ties its controls to the handlers.
#include "ui/window/selection_pane_view.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/window/plate.h"

namespace vorlund {

namespace {

void show_label(QLabel* widget, const Label& label) {
  widget->setText(QString::fromStdString(label.caption));
  widget->setVisible(label.visible && !label.caption.empty());
}

}  // namespace

SelectionPaneView::SelectionPaneView(Form1& form, const Perform& perform, QWidget* parent)
    : form_(form),
      perform_(perform),
      frame_(new PaneFrame("Frame3", PaneFrame::FreeArea::kHides, parent)),
      backdrop_(new PictureView("Image3", PictureFit::kCover, frame_)),
      left_(new Plate(frame_)),
      right_(new Plate(frame_)),
      heading_(add_text("Label42", 1.5)),
      list_(new QScrollArea(frame_)),
      list_board_(new QWidget),
      advice_(add_text("Advice", 1.0)),
      group_(add_text("GroupLabel", 1.0)),
      folder_(add_text("FolderLabel", 1.4)),
      skin_code_(add_text("SkinLab2", 1.0)),
      slot_heading_(add_text("Label44", 1.0)),
      slot_group_(add_text("Label43", 1.0)),
      slot_folder_(add_text("Label45", 1.0)),
      picture_(new PictureView("Image1", PictureFit::kWhole, frame_)),
      picture_hint_(add_text("Image1Hint", 1.0)),
      description_(new QPlainTextEdit(frame_)),
      hide_picture_(new ActionLabel("Label27(0)", ActionLabel::Look::kButton, frame_)),
      toggle_details_(new ActionLabel("Label27(1)", ActionLabel::Look::kButton, frame_)),
      hide_(new ActionLabel("Label10(2)", ActionLabel::Look::kButton, frame_)),
      hide_hint_(add_text("Image3Hint", 1.0)) {
  Form1* f = &form_;
  frame_->on_release = [f, perform](const MouseEvent&) { perform([&] { f->selection.Frame3_Click(); }); };
  backdrop_->on_click = [f, perform] { perform([&] { f->selection.Image3_Click(); }); };
  backdrop_->setFocusPolicy(Qt::NoFocus);
  backdrop_->setAccessibleName("Make a selection, or click here to hide");
  picture_->on_click = [f, perform] { perform([&] { f->Image1_Click(); }); };
  picture_->setAccessibleName("Single click to load");
  picture_->setCursor(Qt::PointingHandCursor);
  hide_picture_->on_release = [f, perform](const MouseEvent&) {
    perform([&] { f->selection.Label27_Click(0); });
  };
  toggle_details_->on_release = [f, perform](const MouseEvent&) {
    perform([&] { f->selection.Label27_Click(1); });
  };
  hide_->on_release = [f, perform](const MouseEvent&) { perform([&] { f->selection.Label10_Click(); }); };
  description_->setObjectName("Text1");
  description_->setAccessibleName("Description");
  description_->setReadOnly(true);
  description_->setTabChangesFocus(true);
  description_->setCursor(Qt::ArrowCursor);
  list_->setObjectName("SelectionLabels");
  list_->setFrameShape(QFrame::NoFrame);
  list_->setFocusPolicy(Qt::NoFocus);
  list_->setWidgetResizable(true);
  list_->setWidget(list_board_);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->setCursor(Qt::ArrowCursor);
  list_->viewport()->setAutoFillBackground(false);
  list_board_->setStyleSheet("background: transparent;");
  list_board_->setLayout(new QVBoxLayout);
  list_board_->layout()->setSpacing(1);
  picture_hint_->setText("Single click to load");
  advice_->setText(
      "Click a folder to see its picture and description. Double click it to choose it at once.");
  hide_hint_->setText("Make a selection, or click here to hide");
  lay_out();
}

QLabel* SelectionPaneView::add_text(const QString& name, double size) {
  auto* label = new QLabel(frame_);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setAttribute(Qt::WA_TransparentForMouseEvents);
  QFont scaled = label->font();
  scaled.setPointSizeF(scaled.pointSizeF() * size);
  scaled.setBold(size > 1);
  label->setFont(scaled);
  return label;
}

void SelectionPaneView::lay_out() {
  auto* left = new QVBoxLayout(left_);
  left->addWidget(heading_);
  left->addWidget(list_, 1);
  left->addWidget(hide_hint_);

  auto* slot = new QHBoxLayout;
  for (QLabel* label : {skin_code_, slot_heading_, slot_group_, slot_folder_}) slot->addWidget(label);
  slot->addStretch(1);
  auto* commands = new QHBoxLayout;
  commands->addWidget(picture_hint_);
  commands->addStretch(1);
  commands->addWidget(hide_picture_);
  commands->addWidget(toggle_details_);
  commands->addWidget(hide_);
  auto* right = new QVBoxLayout(right_);
  right->setContentsMargins(16, 14, 16, 14);
  right->addWidget(group_);
  right->addWidget(folder_);
  right->addLayout(slot);
  right->addWidget(advice_);
  right->addWidget(picture_, 500);
  right->addWidget(description_, 200);
  right->addStretch(1);
  right->addLayout(commands);

  auto* both = new QHBoxLayout;
  both->setSpacing(18);
  both->addWidget(left_, 3);
  both->addWidget(right_, 7);
  frame_->content()->addLayout(both);
}

void SelectionPaneView::apply_selection_labels() {
  const std::vector<Label>& shown = form_.selection.SelLab;
  auto* column = static_cast<QVBoxLayout*>(list_board_->layout());
  while (column->count() > static_cast<int>(selections_.size())) delete column->takeAt(column->count() - 1);
  while (selections_.size() > shown.size()) {
    selections_.back()->hide();
    selections_.back()->setObjectName(QString());
    column->removeWidget(selections_.back());
    selections_.back()->deleteLater();
    selections_.pop_back();
  }
  while (selections_.size() < shown.size()) {
    const int index = static_cast<int>(selections_.size());
    auto* label = new ActionLabel(element_name("SelLab", index), ActionLabel::Look::kRow, list_board_);
    label->on_release = [this, index](const MouseEvent&) {
      perform_([this, index] { form_.selection.SelLab_Click(index); });
    };
    label->on_double_click = [this] { perform_([this] { form_.SelLab_DblClick(); }); };
    column->addWidget(label);
    selections_.push_back(label);
  }
  column->addStretch(1);
  for (std::size_t index = 0; index < shown.size(); ++index) selections_[index]->apply(shown[index]);
}

void SelectionPaneView::apply() {
  const SharedLabels& labels = form_.labels();
  const SelectionPane& pane = form_.selection;
  if (pane.Frame3.visible) apply_selection_labels();
  show_label(heading_, labels.Label42);
  show_label(group_, labels.GroupLabel);
  show_label(folder_, labels.FolderLabel);
  show_label(skin_code_, labels.SkinLab2);
  show_label(slot_heading_, labels.Label44);
  show_label(slot_group_, labels.Label43);
  show_label(slot_folder_, labels.Label45);
  picture_->apply(pane.Image1);
  advice_->setVisible(!pane.shows_selection());
  picture_hint_->setVisible(pane.Image1.visible);
  const QString text = QString::fromStdString(pane.Text1.text).replace("\r\n", "\n");
  if (description_->toPlainText() != text) description_->setPlainText(text);
  description_->setVisible(pane.Text1.visible);
  hide_picture_->apply(pane.Label27[0]);
  toggle_details_->apply(pane.Label27[1]);
  hide_->apply(pane.Label10);
  frame_->apply(pane.Frame3);
  backdrop_->apply(pane.Image3);
  backdrop_->setGeometry(frame_->rect());
  backdrop_->lower();
}

}  // namespace vorlund
