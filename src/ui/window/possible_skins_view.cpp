// Lays out the pane of possible skins and ties its controls to the handlers.
#include "ui/window/possible_skins_view.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/window/theme.h"

namespace vorlund {

PossibleSkinsView::PossibleSkinsView(Form1& form, const Perform& perform, QWidget* parent)
    : form_(form),
      frame_(new PaneFrame("Frame4", PaneFrame::FreeArea::kMoves, parent)),
      wanted_(new TextLabel("Label38", TextLabel::Tone::kHeading, frame_)),
      slot_heading_(new TextLabel("Label36", TextLabel::Tone::kQuiet, frame_)),
      slot_(new TextLabel("Label37", TextLabel::Tone::kStrong, frame_)),
      number_heading_(new TextLabel(QString(), TextLabel::Tone::kQuiet, frame_)),
      plane_number_(new TextLabel("SkinLab3", TextLabel::Tone::kStrong, frame_)),
      match_heading_(new TextLabel("Label34", TextLabel::Tone::kQuiet, frame_)),
      match_(new TextLabel("Label35", TextLabel::Tone::kStrong, frame_)),
      list_heading_(new TextLabel("List4Heading", TextLabel::Tone::kQuiet, frame_)),
      skins_(new ListView("List4", "Possible skins", form.possible_skins.List4.items, frame_)),
      group_(new ActionLabel("Label31", ActionLabel::Look::kButton, frame_)),
      folder_(new TextLabel("Label32", TextLabel::Tone::kHeading, frame_)),
      picture_(new PictureView("Image4", PictureFit::kWhole, frame_)),
      help_(new ActionLabel("Label33", ActionLabel::Look::kHelp, frame_)) {
  Form1* f = &form_;
  frame_->on_press = [f, perform](const MouseEvent& e) {
    perform([&] { f->possible_skins.Frame4_MouseDown(e); });
  };
  frame_->on_release = [f, perform](const MouseEvent& e) {
    perform([&] { f->possible_skins.Frame4_MouseUp(e); });
  };
  skins_->on_select = [f, perform](int index) {
    perform([&] {
      f->possible_skins.List4.selected = index;
      f->possible_skins.List4_Click();
    });
  };
  skins_->set_empty_text("No skins are listed");
  picture_->on_click = [f, perform] { perform([&] { f->Image4_Click(); }); };
  picture_->setAccessibleName("Picture of the skin; a click chooses it");
  picture_->setCursor(Qt::PointingHandCursor);
  group_->on_release = [f, perform](const MouseEvent&) {
    perform([&] { f->possible_skins.Label31_Click(); });
  };
  group_->setToolTip("Empties the list");
  help_->on_release = [f, perform](const MouseEvent&) {
    perform([&] { f->possible_skins.Label33_Click(); });
  };
  lay_out();
}

void PossibleSkinsView::lay_out() {
  list_heading_->setText("Possible skins");
  number_heading_->setText("PlnDat:");
  auto* numbers = new QHBoxLayout;
  numbers->addWidget(slot_heading_);
  numbers->addWidget(slot_);
  numbers->addSpacing(12);
  numbers->addWidget(number_heading_);
  numbers->addWidget(plane_number_);
  numbers->addStretch(1);
  auto* matched = new QHBoxLayout;
  matched->addWidget(match_heading_);
  matched->addWidget(match_);
  matched->addStretch(1);
  auto* left = new QVBoxLayout;
  left->setSpacing(6);
  left->addWidget(wanted_);
  left->addLayout(numbers);
  left->addLayout(matched);
  left->addSpacing(6);
  left->addWidget(list_heading_);
  left->addWidget(skins_, 1);

  auto* viewed = new QHBoxLayout;
  viewed->setSpacing(12);
  viewed->addWidget(group_);
  viewed->addWidget(folder_, 1);
  auto* right = new QVBoxLayout;
  right->addLayout(viewed);
  right->addWidget(picture_, 1);

  auto* both = new QHBoxLayout;
  both->setSpacing(18);
  both->addLayout(left, 2);
  both->addLayout(right, 5);
  frame_->content()->addLayout(both, 1);
  frame_->content()->addWidget(help_);
}

void PossibleSkinsView::apply() {
  const PossibleSkins& pane = form_.possible_skins;
  fit_to_room(form_.possible_skins.Frame4, *frame_->parentWidget(), QSize(1320, 1000));
  wanted_->apply(pane.Label38);
  slot_heading_->apply(pane.Label36);
  slot_->apply(pane.Label37);
  plane_number_->apply(form_.labels().SkinLab3);
  number_heading_->setVisible(!form_.labels().SkinLab3.caption.empty());
  match_heading_->apply(pane.Label34);
  match_->apply(pane.Label35);
  skins_->apply(pane.List4.selected);
  skins_->setVisible(pane.List4.visible);
  group_->apply(pane.Label31);
  group_->setVisible(pane.Label31.visible && !pane.Label31.caption.empty());
  folder_->apply(pane.Label32);
  help_->apply(pane.Label33);
  frame_->apply(pane.Frame4);
  picture_->apply(pane.Image4);
}

}  // namespace vorlund
