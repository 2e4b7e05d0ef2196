// Declares the controls of the pane of possible skins and lays them out.
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "window/contact_sheet.h"
#include "window/views.h"

namespace vorlund {

namespace {

constexpr int kTile = 124;  // pixels at least

QHBoxLayout* in_a_row(const std::vector<QWidget*>& widgets) {
  auto* row = new QHBoxLayout;
  for (QWidget* widget : widgets) row->addWidget(widget);
  row->addStretch(1);
  return row;
}

/// View of PossibleSkins' `Frame4`.
class PossibleSkinsView : public PaneView {
 public:
  PossibleSkinsView(Form1& form, const Perform& perform, QWidget* parent);

 private:
  QLayout* lay_out_list();
  QLayout* lay_out_picture();
  QWidget* make_sheet();
};

PossibleSkinsView::PossibleSkinsView(Form1& form, const Perform& perform, QWidget* parent)
    : PaneView(form, perform) {
  const PossibleSkins& pane = form.possible_skins;
  dragged_frame("Frame4", pane.Frame4, parent, &Form1::Frame4_MouseDown, &Form1::Frame4_MouseUp,
                [this] { run(&Form1::Label33_Click); });
  auto* both = new QHBoxLayout;
  both->setSpacing(18);
  both->addLayout(lay_out_list(), 2);
  both->addLayout(lay_out_picture(), 5);
  frame_->content()->addLayout(both, 1);
  frame_->content()->addWidget(
      command("Label33", pane.Label33, Look::kHelp, &Form1::Label33_Click, "Hides the pane (Escape)"));
}

QLayout* PossibleSkinsView::lay_out_list() {
  PossibleSkins& pane = form_.possible_skins;
  const Label& number = form_.desk.labels.SkinLab3;
  auto* wanted = text("Label38", pane.Label38, Tone::kHeading);
  auto* slot_heading = text("Label36", pane.Label36, Tone::kQuiet);
  auto* slot = text("Label37", pane.Label37, Tone::kStrong);
  auto* number_heading = note("PlnDat:");
  also([number_heading, &number] { number_heading->setVisible(!number.caption.empty()); });
  auto* plane_number = text("SkinLab3", number, Tone::kStrong);
  auto* match_heading = text("Label34", pane.Label34, Tone::kQuiet);
  auto* match = text("Label35", pane.Label35, Tone::kStrong);
  auto* skins = list("List4", "Possible skins", pane.List4, &Form1::List4_Click, "No skins are listed");
  skins->setToolTip("A click shows the skin's picture");

  auto* left = new QVBoxLayout;
  left->setSpacing(6);
  left->addWidget(wanted);
  left->addLayout(in_a_row({slot_heading, slot, number_heading, plane_number}));
  left->addLayout(in_a_row({match_heading, match}));
  left->addSpacing(6);
  left->addWidget(note("Possible skins"));
  left->addWidget(skins, 1);
  return left;
}

QLayout* PossibleSkinsView::lay_out_picture() {
  const PossibleSkins& pane = form_.possible_skins;
  auto* group = command("Label31", pane.Label31, Look::kButton, &Form1::Label31_Click, "Empties the list");
  also([group, &pane] { group->setVisible(pane.Label31.visible && !pane.Label31.caption.empty()); });
  auto* folder = text("Label32", pane.Label32, Tone::kHeading);
  auto* shown = picture("Image4", pane.Image4, PictureFit::kWhole, "Picture of the skin; a click chooses it",
                        &Form1::Image4_Click);
  shown->setToolTip("A click chooses the skin for the slot that it is made for");
  shown->setCursor(Qt::PointingHandCursor);

  auto* viewed = new QHBoxLayout;
  viewed->setSpacing(12);
  viewed->addWidget(group);
  viewed->addWidget(folder, 1);
  auto* right = new QVBoxLayout;
  right->addLayout(viewed);
  right->addWidget(shown, 3);
  right->addWidget(make_sheet(), 2);
  return right;
}

QWidget* PossibleSkinsView::make_sheet() {
  PossibleSkins& pane = form_.possible_skins;
  auto* sheet = new ContactSheet(
      "SkinSheet", "Pictures of the possible skins", pane.List4.items, pane.List4.finder, form_.desk.files,
      [&pane](int index) { return pane.folder_of(index); }, board_);
  sheet->set_least_width(kTile);
  sheet->setToolTip("A click shows a skin, a double click chooses it; what is typed finds one");
  sheet->on_select = [this](int index) { run(&Form1::List4_Click, index); };
  sheet->on_double_click = [this] { run(&Form1::Image4_Click); };
  find_in(sheet, pane.List4.finder);
  also([sheet, &pane] {
    if (!pane.Frame4.visible) sheet->forget_pictures();
    sheet->setVisible(!pane.List4.items.empty());
    sheet->apply(pane.List4.selected);
  });
  return sheet;
}

}  // namespace

std::unique_ptr<PaneView> possible_skins_view(Form1& form, const Perform& perform, QWidget* parent) {
  return std::make_unique<PossibleSkinsView>(form, perform, parent);
}

}  // namespace vorlund
