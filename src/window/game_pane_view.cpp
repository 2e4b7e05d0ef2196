// Declares the controls of the game pane and lays them out.
#include "window/game_pane_view.h"

#include <QHBoxLayout>

#include "window/grid_view.h"

namespace vorlund {

GamePaneView::GamePaneView(Form1& form, const Perform& perform, QWidget* parent) : PaneView(form, perform) {
  const GamePane& pane = form.game;
  dragged_frame("GameFrame", pane.GameFrame, parent, &Form1::GameFrame_MouseDown, &Form1::GameFrame_MouseUp);
  auto* table = new GridView("G2", "Game Frame", pane.G2, GamePane::kColumnWidths, frame_);
  table->on_click = table->on_move = [this](int row, int) { run(&Form1::G2_Click, row); };
  also([table] { table->apply(); });
  auto* process = command("GameLoad", pane.GameLoad, Look::kPrimary, &Form1::GameLoad_Click);
  auto* clear = command("Label28", pane.Label28, Look::kButton, &Form1::Label28_Click);
  auto* move = command("Label29", pane.Label29, Look::kButton, &Form1::Label29_Click);
  auto* save = command("Label11", form.save_pane.Label11, Look::kButton, &Form1::Label11_Click);
  auto* load = command("Label12", form.load_pane.Label12, Look::kButton, &Form1::Label12_Click);
  auto* hide = command("Label10", 1, pane.Label10, Look::kButton, &Form1::Label10_Click);

  auto* rows = new QHBoxLayout;
  rows->addWidget(clear);
  rows->addWidget(move, 1);
  auto* commands = new QHBoxLayout;
  commands->addWidget(process, 2);
  for (ActionLabel* label : {save, load, hide}) commands->addWidget(label, 1);
  frame_->content()->addWidget(table, 1);
  frame_->content()->addLayout(rows);
  frame_->content()->addLayout(commands);
  table->apply();
  table->fit_columns();
}

}  // namespace vorlund
