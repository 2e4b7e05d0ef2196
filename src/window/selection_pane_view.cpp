// Declares the controls of the selection pane and lays them out.
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "window/contact_sheet.h"
#include "window/pane_layout.h"
#include "window/plate.h"
#include "window/views.h"

namespace vorlund {

namespace {

constexpr const char* kOfFolders =
    "A click shows a folder, a double click chooses it; what is typed finds one";

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

/// View of SelectionPane's `Frame3`.
class SelectionPaneView : public PaneView {
 public:
  SelectionPaneView(Form1& form, const Perform& perform, QWidget* parent);

 private:
  QWidget* make_selections();
  QWidget* make_details();
  QLayout* make_commands();
  QWidget* make_description();
  enum class Of { kGroup, kSelection };
  QLabel* detail(const char* name, const Label& data, double size = 1.0, Of of = Of::kSelection);
  QLabel* label(const char* name, double size, const QString& words = {});
  QWidget* make_sheet();
  void show_sheet(bool shown);

  ListView* list_ = nullptr;
  ContactSheet* sheet_ = nullptr;
  bool came_from_sheet_ = false;  ///< to the shown selection, with the keyboard
};

SelectionPaneView::SelectionPaneView(Form1& form, const Perform& perform, QWidget* parent)
    : PaneView(form, perform) {
  const SelectionPane& pane = form.selection;
  clicked_frame("Frame3", pane.Frame3, parent, &Form1::Frame3_Click);
  frame_->on_escape = [this] { run(&Form1::step_back_in_selection); };
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

/// Shown beside the list of folders, or with the shown selection alone.
QLabel* SelectionPaneView::detail(const char* name, const Label& data, double size, Of of) {
  auto* widget = label(name, size);
  also([this, widget, &data, of] {
    const bool in_place = of == Of::kGroup || !form_.selection.shows_sheet();
    widget->setText(QString::fromStdString(data.caption));
    widget->setVisible(in_place && data.visible && !data.caption.empty());
  });
  return widget;
}

QWidget* SelectionPaneView::make_selections() {
  SelectionPane& pane = form_.selection;
  auto* plate = new Plate(frame_);
  stand_on(plate);
  list_ = labels("SelLab", "Folders of the group", pane.SelLab, pane.viewed, pane.found_folders,
                 &Form1::SelLab_Click);
  list_->on_double_click = [this] { run(&Form1::SelLab_DblClick); };
  list_->arrows_act = [&pane] { return !pane.shows_sheet(); };
  list_->setToolTip(kOfFolders);
  list_->stand_on_picture();

  auto* layout = new QVBoxLayout(plate);
  layout->addWidget(detail("Label42", form_.desk.labels.Label42, 1.5, Of::kGroup));
  layout->addWidget(list_, 1);
  layout->addWidget(label("Image3Hint", 1.0, "Make a selection, or click here to hide"));
  return plate;
}

QWidget* SelectionPaneView::make_sheet() {
  SelectionPane& pane = form_.selection;
  sheet_ = new ContactSheet(
      "Sheet", "Pictures of the group", pane.SelLab, pane.found_folders, form_.desk.files,
      [&pane](int index) { return pane.folder_of(index); }, board_);
  sheet_->on_select = [this](int index) { run(&Form1::SelLab_Click, index); };
  sheet_->on_double_click = [this] { run(&Form1::SelLab_DblClick); };
  sheet_->setToolTip(kOfFolders);
  sheet_->set_empty_text("This group has no folder to choose");
  find_in(sheet_, pane.found_folders);
  also([this, &pane] { show_sheet(pane.shows_sheet()); });
  return sheet_;
}

/// The keyboard goes with the player from the sheet to the list beside the shown selection, and back.
void SelectionPaneView::show_sheet(bool shown) {
  if (!form_.selection.Frame3.visible) sheet_->forget_pictures();
  const bool was_shown = !sheet_->isHidden();
  if (was_shown && !shown) {
    came_from_sheet_ = sheet_->hasFocus();
    if (came_from_sheet_) list_->setFocus(Qt::OtherFocusReason);
  }
  sheet_->setVisible(shown);
  sheet_->apply(form_.selection.viewed);
  if (!was_shown && shown && came_from_sheet_) sheet_->setFocus(Qt::OtherFocusReason);
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
            "Click a folder to see its picture and description. Double click it to choose it at once. "
            "Type to find one.");
  advice->setWordWrap(true);
  also([advice, &pane] { advice->setVisible(pane.shows_sheet()); });
  auto* shown =
      picture("Image1", pane.Image1, PictureFit::kWhole, "Single click to load", &Form1::Image1_Click);
  shown->on_second_press = [this] { run(&Form1::SelLab_DblClick); };
  shown->setCursor(Qt::PointingHandCursor);
  shown->setToolTip("A click chooses the folder");

  auto* layout = new QVBoxLayout(plate);
  layout->setContentsMargins(16, PaneLayout::kStripHeight, 16, 14);
  layout->addWidget(detail("GroupLabel", labels.GroupLabel));
  layout->addWidget(detail("FolderLabel", labels.FolderLabel, 1.4));
  layout->addLayout(slot);
  layout->addWidget(advice);
  layout->addWidget(shown, 500);
  layout->addWidget(make_sheet(), 1000);
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
  constexpr std::array kTips = {"Hides the picture and shows the group's sheet again",
                                "Shows the description, or hides it"};
  for (int index = 0; index < static_cast<int>(pane.Label27.size()); ++index) {
    const auto at = static_cast<std::size_t>(index);
    const Label& data = pane.Label27[at];
    auto* of_selection = command("Label27", index, data, Look::kButton, &Form1::Label27_Click, kTips[at]);
    also([of_selection, &data, &pane] { of_selection->setVisible(data.visible && !pane.shows_sheet()); });
    commands->addWidget(of_selection);
  }
  commands->addWidget(
      command("Label10", 2, pane.Label10, Look::kButton, &Form1::Label10_Click, "Leaves the group (Escape)"));
  return commands;
}

}  // namespace

std::unique_ptr<PaneView> selection_pane_view(Form1& form, const Perform& perform, QWidget* parent) {
  return std::make_unique<SelectionPaneView>(form, perform, parent);
}

}  // namespace vorlund
