// Lays out the game pane and ties its controls to the handlers.
#include "ui/window/game_pane_view.h"

#include <QHBoxLayout>

namespace vorlund {

GamePaneView::GamePaneView(Form1& form, const Perform& perform, QWidget* parent)
    : form_(form),
      frame_(new PaneFrame("GameFrame", PaneFrame::FreeArea::kMoves, parent)),
      table_(new GridView("G2", form.game.table.G2, frame_)),
      process_(new ActionLabel("GameLoad", ActionLabel::Look::kPrimary, frame_)),
      clear_(new ActionLabel("Label28", ActionLabel::Look::kButton, frame_)),
      move_(new ActionLabel("Label29", ActionLabel::Look::kButton, frame_)),
      save_(new ActionLabel("Label11", ActionLabel::Look::kButton, frame_)),
      load_(new ActionLabel("Label12", ActionLabel::Look::kButton, frame_)),
      hide_(new ActionLabel("Label10(1)", ActionLabel::Look::kButton, frame_)) {
  Form1* f = &form_;
  frame_->on_press = [f, perform](const MouseEvent& e) { perform([&] { f->game.GameFrame_MouseDown(e); }); };
  frame_->on_release = [f, perform](const MouseEvent& e) { perform([&] { f->game.GameFrame_MouseUp(e); }); };
  table_->on_click =
      table_->on_move = [f, perform](int row, int) { perform([&] { f->game.G2_Click(row); }); };
  process_->on_release = [f, perform](const MouseEvent&) { perform([&] { f->game.GameLoad_Click(); }); };
  clear_->on_release = [f, perform](const MouseEvent&) { perform([&] { f->Label28_Click(); }); };
  move_->on_release = [f, perform](const MouseEvent&) { perform([&] { f->Label29_Click(); }); };
  save_->on_release = [f, perform](const MouseEvent&) { perform([&] { f->save_pane.Label11_Click(); }); };
  load_->on_release = [f, perform](const MouseEvent&) { perform([&] { f->load_pane.Label12_Click(); }); };
  hide_->on_release = [f, perform](const MouseEvent&) { perform([&] { f->game.Label10_Click(); }); };

  auto* rows = new QHBoxLayout;
  rows->addWidget(clear_);
  rows->addWidget(move_, 1);
  auto* commands = new QHBoxLayout;
  commands->addWidget(process_, 2);
  commands->addWidget(save_, 1);
  commands->addWidget(load_, 1);
  commands->addWidget(hide_, 1);
  frame_->content()->addWidget(table_, 1);
  frame_->content()->addLayout(rows);
  frame_->content()->addLayout(commands);
  table_->apply();
  table_->fit_columns();
}

void GamePaneView::apply() {
  table_->apply();
  process_->apply(form_.game.GameLoad);
  clear_->apply(form_.game.Label28);
  move_->apply(form_.game.Label29);
  save_->apply(form_.save_pane.Label11);
  load_->apply(form_.load_pane.Label12);
  hide_->apply(form_.game.Label10);
  frame_->apply(form_.game.GameFrame);
}

}  // namespace vorlund
