// Declares the controls of the selection pane and lays them out.
#include "window/selection_pane_view.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "window/pane_layout.h"
#include "window/plate.h"

namespace vorlund {

namespace {

/// A description as it is shown: laying out a line takes time that grows with the square of its length, so a
/// line that is longer than anybody's goes on in the next.
QString in_short_lines(const QString& text) {
  constexpr qsizetype kLongest = 2000;
  QStringList shown;
  for (const QString& line : QString(text).replace("\r\n", "\n").split('\n')) {
    qsizetype at = 0;
    do {
      shown.append(line.mid(at, kLongest));
      at += kLongest;
    } while (at < line.size());
  }
  return shown.join('\n');
}

}  // namespace

SelectionPaneView::SelectionPaneView(Form1& form, const Perform& perform, QWidget* parent)
    : PaneView(form, perform) {
  const SelectionPane& pane = form.selection;
  clicked_frame("Frame3", pane.Frame3, parent, &Form1::Frame3_Click);
  auto* backdrop = picture("Image3", pane.Image3, PictureFit::kCover,
                           "Make a selection, or click here to hide", &Form1::Image3_Click);
  backdrop->setFocusPolicy(Qt::NoFocus);
  also([this, backdrop] {
    backdrop->setGeometry(frame_->rect());
    backdrop->lower();
  });
  auto* both = new QHBoxLayout;
  both->setSpacing(18);
  both->addWidget(make_selections(), 3);
  both->addWidget(make_details(), 7);
  frame_->content()->addLayout(both);
}

QLabel* SelectionPaneView::label(const char* name, double size, const QString& words) {
  auto* widget = new QLabel(words, board_);
  widget->setObjectName(name);
  widget->setTextFormat(Qt::PlainText);
  widget->setAttribute(Qt::WA_TransparentForMouseEvents);
  QFont scaled = widget->font();
  scaled.setPointSizeF(scaled.pointSizeF() * size);
  scaled.setBold(size > 1);
  widget->setFont(scaled);
  return widget;
}

QLabel* SelectionPaneView::detail(const char* name, const Label& data, double size) {
  auto* widget = label(name, size);
  also([widget, &data] {
    widget->setText(QString::fromStdString(data.caption));
    widget->setVisible(data.visible && !data.caption.empty());
  });
  return widget;
}

QWidget* SelectionPaneView::make_selections() {
  auto* plate = new Plate(frame_);
  stand_on(plate);
  auto* list = new QScrollArea(plate);
  list->setObjectName("SelectionLabels");
  list->setFrameShape(QFrame::NoFrame);
  list->setFocusPolicy(Qt::NoFocus);
  list->setWidgetResizable(true);
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->setCursor(Qt::ArrowCursor);
  list->viewport()->setAutoFillBackground(false);
  selections_board_ = new QWidget;
  selections_board_->setStyleSheet("background: transparent;");
  selections_board_->setLayout(new QVBoxLayout);
  selections_board_->layout()->setSpacing(1);
  list->setWidget(selections_board_);
  also([this] { show_selection_labels(); });

  auto* layout = new QVBoxLayout(plate);
  layout->addWidget(detail("Label42", form_.desk.labels.Label42, 1.5));
  layout->addWidget(list, 1);
  layout->addWidget(label("Image3Hint", 1.0, "Make a selection, or click here to hide"));
  return plate;
}

QWidget* SelectionPaneView::make_details() {
  const SharedLabels& labels = form_.desk.labels;
  const SelectionPane& pane = form_.selection;
  auto* plate = new Plate(frame_);
  stand_on(plate);
  auto* slot = new QHBoxLayout;
  slot->addWidget(detail("SkinLab2", labels.SkinLab2));
  slot->addWidget(detail("Label44", labels.Label44));
  slot->addWidget(detail("Label43", labels.Label43));
  slot->addWidget(detail("Label45", labels.Label45));
  slot->addStretch(1);
  auto* advice =
      label("Advice", 1.0,
            "Click a folder to see its picture and description. Double click it to choose it at once.");
  also([advice, &pane] { advice->setVisible(!pane.shows_selection()); });
  auto* shown =
      picture("Image1", pane.Image1, PictureFit::kWhole, "Single click to load", &Form1::Image1_Click);
  shown->setCursor(Qt::PointingHandCursor);
  shown->setToolTip("A click chooses the folder");

  auto* layout = new QVBoxLayout(plate);
  layout->setContentsMargins(16, PaneLayout::kStripHeight, 16, 14);
  layout->addWidget(detail("GroupLabel", labels.GroupLabel));
  layout->addWidget(detail("FolderLabel", labels.FolderLabel, 1.4));
  layout->addLayout(slot);
  layout->addWidget(advice);
  layout->addWidget(shown, 500);
  layout->addWidget(make_description(), 200);
  layout->addStretch(1);
  layout->addLayout(make_commands());
  return plate;
}

QWidget* SelectionPaneView::make_description() {
  auto* description = new QPlainTextEdit(board_);
  description->setObjectName("Text1");
  description->setAccessibleName("Description");
  description->setToolTip("What the folder says of itself");
  description->setReadOnly(true);
  description->setTabChangesFocus(true);
  description->setCursor(Qt::ArrowCursor);
  also([description, &data = form_.selection.Text1, shown = std::string()]() mutable {
    if (shown != data.text) description->setPlainText(in_short_lines(QString::fromStdString(data.text)));
    shown = data.text;
    description->setVisible(data.visible);
  });
  return description;
}

QLayout* SelectionPaneView::make_commands() {
  const SelectionPane& pane = form_.selection;
  auto* picture_hint = label("Image1Hint", 1.0, "Single click to load");
  also([picture_hint, &pane, shown = std::shared_ptr<const std::string>()]() mutable {
    picture_hint->setVisible(pane.Image1.visible);
    if (shown == pane.Image1.picture.bytes) return;
    shown = pane.Image1.picture.bytes;
    const QString why = why_undecodable(pane.Image1.picture);
    picture_hint->setText(why.isEmpty() ? QStringLiteral("Single click to load") : why);
  });
  auto* commands = new QHBoxLayout;
  commands->addWidget(picture_hint);
  commands->addStretch(1);
  commands->addWidget(command("Label27", 0, pane.Label27[0], Look::kButton, &Form1::Label27_Click,
                              "Hides the picture alone"));
  commands->addWidget(command("Label27", 1, pane.Label27[1], Look::kButton, &Form1::Label27_Click,
                              "Shows the description, or hides it"));
  commands->addWidget(
      command("Label10", 2, pane.Label10, Look::kButton, &Form1::Label10_Click, "Leaves the group (Escape)"));
  return commands;
}

void SelectionPaneView::show_selection_labels() {
  if (!form_.selection.Frame3.visible) return;
  const std::vector<Label>& shown = form_.selection.SelLab;
  auto* column = static_cast<QVBoxLayout*>(selections_board_->layout());
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
    auto* row = new ActionLabel(element_name("SelLab", index), Look::kRow, selections_board_);
    row->on_release = [this, index](const MouseEvent&) { run(&Form1::SelLab_Click, index); };
    row->on_double_click = [this] { run(&Form1::SelLab_DblClick); };
    column->addWidget(row);
    selections_.push_back(row);
  }
  column->addStretch(1);
  for (std::size_t index = 0; index < shown.size(); ++index) selections_[index]->apply(shown[index]);
}

}  // namespace vorlund
