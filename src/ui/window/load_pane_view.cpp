// Lays out the load pane and ties its controls to the handlers.
#include "ui/window/load_pane_view.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/window/theme.h"

namespace vorlund {

namespace {

/// Keeps what lies in front of the pane's picture readable.
class Board : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    QColor fill = theme::kPanel;
    fill.setAlpha(232);
    theme::draw_plate(painter, rect(), fill, QColor(0, 0, 0, 0));
  }
};

}  // namespace

LoadPaneView::LoadPaneView(Form1& form, const Perform& perform, QWidget* parent)
    : form_(form),
      frame_(new PaneFrame("Frame2", PaneFrame::FreeArea::kHides, parent)),
      backdrop_(new PictureView("Image2", PictureFit::kCover, frame_)),
      board_(new Board(frame_)),
      headings_({new TextLabel("Label22(0)", TextLabel::Tone::kStrong, board_),
                 new TextLabel("Label22(1)", TextLabel::Tone::kStrong, board_)}),
      game_sets_(new ListView("File3", "Gamesets", form.load_pane.File3.names, board_)),
      plane_sets_(new ListView("File2", "Planesets", form.load_pane.File2.names, board_)),
      chosen_game_set_(new TextLabel("Label21", TextLabel::Tone::kStrong, board_)),
      chosen_plane_set_(new TextLabel("Label20", TextLabel::Tone::kStrong, board_)),
      view_(new CheckBox("Check1", board_)),
      other_view_(new CheckBox("Check2", board_)),
      hint_(new QLabel(board_)),
      load_(new ActionLabel("Label19", ActionLabel::Look::kPrimary, board_)),
      cancel_(new ActionLabel("Label40", ActionLabel::Look::kButton, board_)) {
  Form1* f = &form_;
  frame_->on_release = [f, perform](const MouseEvent&) { perform([&] { f->load_pane.Frame2_Click(); }); };
  game_sets_->on_select = [f, perform](int index) { perform([&] { f->load_pane.File3_Click(index); }); };
  plane_sets_->on_select = [f, perform](int index) { perform([&] { f->load_pane.File2_Click(index); }); };
  game_sets_->set_empty_text("No game set has been saved yet");
  plane_sets_->set_empty_text("No aircraft set has been saved yet");
  view_->on_click = [f, perform] {
    perform([&] { f->load_pane.Check1.checked = !f->load_pane.Check1.checked; });
  };
  // Deliberate: the one box governs both kinds. The other is shown in its place and can't mislead.
  other_view_->setEnabled(false);
  other_view_->setAttribute(Qt::WA_NoMousePropagation);
  other_view_->setToolTip("The box beside it governs both lists");
  load_->on_release = [f, perform](const MouseEvent&) { perform([&] { f->Label19_Click(); }); };
  cancel_->on_release = [f, perform](const MouseEvent&) { perform([&] { f->load_pane.Label40_Click(); }); };
  backdrop_->setFocusPolicy(Qt::NoFocus);
  backdrop_->setAttribute(Qt::WA_TransparentForMouseEvents);
  hint_->setObjectName("ViewHint");
  hint_->setTextFormat(Qt::PlainText);
  hint_->setStyleSheet(QStringLiteral("color: %1;").arg(theme::kQuietText.name()));
  lay_out();
}

void LoadPaneView::lay_out() {
  const auto column = [this](TextLabel* heading, ListView* list, TextLabel* chosen, CheckBox* box) {
    auto* prefix = new TextLabel(QString(), TextLabel::Tone::kQuiet, board_);
    prefix->setText("Chosen:");
    auto* choice = new QHBoxLayout;
    choice->addWidget(prefix);
    choice->addWidget(chosen, 1);
    auto* layout = new QVBoxLayout;
    layout->setSpacing(8);
    layout->addWidget(heading);
    layout->addWidget(list, 1);
    layout->addLayout(choice);
    layout->addWidget(box);
    return layout;
  };
  auto* lists = new QHBoxLayout;
  lists->setSpacing(18);
  lists->addLayout(column(headings_[0], game_sets_, chosen_game_set_, view_), 1);
  lists->addLayout(column(headings_[1], plane_sets_, chosen_plane_set_, other_view_), 1);
  auto* commands = new QHBoxLayout;
  commands->addWidget(load_, 2);
  commands->addWidget(cancel_, 1);
  auto* layout = new QVBoxLayout(board_);
  layout->setContentsMargins(16, 14, 16, 16);
  layout->setSpacing(10);
  layout->addLayout(lists, 1);
  layout->addWidget(hint_);
  layout->addLayout(commands);
  frame_->content()->addWidget(board_, 1);
}

void LoadPaneView::apply() {
  const LoadPane& pane = form_.load_pane;
  for (std::size_t index = 0; index < headings_.size(); ++index) headings_[index]->apply(pane.Label22[index]);
  game_sets_->apply(pane.File3.selected);
  game_sets_->setVisible(pane.File3_visible);
  plane_sets_->apply(pane.File2.selected);
  chosen_game_set_->apply(pane.Label21);
  chosen_plane_set_->apply(pane.Label20);
  view_->apply(pane.Check1);
  other_view_->apply(pane.Check2);
  hint_->setText(pane.Check1.checked
                     ? "\"View\" is ticked: the set-ups are loaded into the tables only."
                     : "\"View\" is not ticked: the set-ups are loaded and installed at once.");
  load_->apply(pane.Label19);
  cancel_->apply(pane.Label40);
  frame_->apply(pane.Frame2);
  backdrop_->apply(pane.Image2);
  backdrop_->setGeometry(frame_->body());
  backdrop_->lower();
}

}  // namespace vorlund
