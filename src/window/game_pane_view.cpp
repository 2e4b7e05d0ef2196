// Declares the controls of the game pane and lays them out.
#include <QHBoxLayout>

#include "window/grid_view.h"
#include "window/pane_layout.h"
#include "window/views.h"

namespace vorlund {

namespace {

/// View of GamePane, with the labels that open the save and load panes from it.
class GamePaneView : public PaneView {
 public:
  GamePaneView(Form1& form, const Perform& perform, QWidget* parent) : PaneView(form, perform) {
    const GamePane& pane = form.game;
    dragged_frame("GameFrame", pane.GameFrame, parent, &Form1::GameFrame_MouseDown, &Form1::GameFrame_MouseUp,
                  [this] { run(&Form1::Label10_Click, 1); });
    auto* table = new GridView("G2", "Game Frame", pane.G2, GamePane::kColumnWidths, frame_);
    table->on_click = table->on_move = [this](int row, int) { run(&Form1::G2_Click, row); };
    table->set_empty_text(
        "No row names a folder yet: \"Make Game Settings\" in the menu shows what there is");
    table->grid_model().mark = [&pane](int row) { return pane.mark(row); };
    table->grid_model().mark_in_words = [&pane](int row) { return pane.mark_in_words(row); };
    also([table] { table->apply(); });
    table->on_delete = [this] { run(&Form1::Label28_Click); };
    table->setToolTip("The folders that are installed, from top to bottom: a later one wins");
    auto* clear = command("Label28", pane.Label28, Look::kButton, &Form1::Label28_Click,
                          "Takes the row out of the set (Delete); its files stay until \"Clean Up\"");
    auto* move = command("Label29", pane.Label29, Look::kButton, &Form1::Label29_Click,
                         "Has the row installed last, so that its files win");
    auto* process = command("GameLoad", pane.GameLoad, Look::kPrimary, &Form1::GameLoad_Click,
                            "Copies the files of all rows into the game folder, from top to bottom");
    also([process, &form, &pane] {
      process->set_look(is_at_hand(form, pane.GameFrame) ? Look::kPrimary : Look::kButton);
    });
    auto* save = command("Label11", form.save_pane.Label11, Look::kButton, &Form1::Label11_Click,
                         "Saves the game table under a name");
    auto* load = command("Label12", form.load_pane.Label12, Look::kButton, &Form1::Label12_Click,
                         "Shows the saved set-ups");
    auto* contents =
        command("Contents(1)", form.contents.Contents[1], Look::kButton, &Form1::Contents_Click,
                "Tells what \"Process!\" would write, where each file comes from, and what is wrong");
    auto* hide = command("Label10", 1, pane.Label10, Look::kButton, &Form1::Label10_Click,
                         "Hides the game table (Escape)");

    auto* rows = new QHBoxLayout;
    rows->addWidget(clear);
    rows->addWidget(move, 1);
    rows->addWidget(contents);
    auto* commands = new QHBoxLayout;
    commands->addWidget(process, 2);
    for (ActionLabel* label : {save, load, hide}) commands->addWidget(label, 1);
    frame_->content()->addWidget(table, 1);
    frame_->content()->addLayout(rows);
    frame_->content()->addLayout(commands);
    table->apply();
    table->fit_columns();
  }
};

}  // namespace

std::unique_ptr<PaneView> game_pane_view(Form1& form, const Perform& perform, QWidget* parent) {
  return std::make_unique<GamePaneView>(form, perform, parent);
}

}  // namespace vorlund
