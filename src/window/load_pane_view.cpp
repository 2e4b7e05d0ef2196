// Declares the controls of the load pane and lays them out.
#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

#include "window/theme.h"
#include "window/views.h"

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

/// View of LoadPane's `Frame2`.
class LoadPaneView : public PaneView {
 public:
  LoadPaneView(Form1& form, const Perform& perform, QWidget* parent);

 private:
  ActionLabel* chosen(const char* name, const Label& data, ListView& list, Click take_back);
  QLayout* column(TextLabel* heading, ListView* list, ActionLabel* chosen, CheckBox* box);
};

LoadPaneView::LoadPaneView(Form1& form, const Perform& perform, QWidget* parent) : PaneView(form, perform) {
  LoadPane& pane = form.load_pane;
  clicked_frame("Frame2", pane.Frame2, parent, &Form1::Frame2_Click);
  auto* backdrop = new PictureView("Image2", PictureFit::kCover, frame_);
  backdrop->setFocusPolicy(Qt::NoFocus);
  backdrop->setAttribute(Qt::WA_TransparentForMouseEvents);
  also([this, backdrop, &pane] {
    backdrop->apply(pane.Image2);
    backdrop->setGeometry(frame_->body());
    backdrop->lower();
  });
  stand_on(new Board(frame_));
  auto* games = list("File3", "Gamesets", pane.File3, &Form1::File3_Click, "No game set has been saved yet");
  also([games, &pane] { games->setVisible(pane.File3_visible); });
  auto* planes =
      list("File2", "Planesets", pane.File2, &Form1::File2_Click, "No aircraft set has been saved yet");
  auto* game = chosen("Label21", pane.Label21, *games, &Form1::Label21_Click);
  auto* plane = chosen("Label20", pane.Label20, *planes, &Form1::Label20_Click);
  auto* view = check_box("Check1", pane.Check1, &Form1::Check1_Click);
  view->setToolTip("Ticked: load into the tables and show them. Not ticked: install at once");
  games->setToolTip("A click chooses a game set, Delete takes the choice back");
  planes->setToolTip("A click chooses an aircraft set, Delete takes the choice back");
  // Deliberate: the one box governs both kinds. The other is shown in its place and can't mislead.
  auto* other_view = new CheckBox("Check2", board_);
  also([other_view, &pane] { other_view->apply(pane.Check2); });
  other_view->setEnabled(false);
  other_view->setAttribute(Qt::WA_NoMousePropagation);
  other_view->setToolTip("The box beside it governs both lists");

  auto* lists = new QHBoxLayout;
  lists->setSpacing(18);
  lists->addLayout(column(text("Label22(0)", pane.Label22[0], Tone::kStrong), games, game, view), 1);
  lists->addLayout(column(text("Label22(1)", pane.Label22[1], Tone::kStrong), planes, plane, other_view), 1);
  auto* commands = new QHBoxLayout;
  commands->addWidget(command("Label19", pane.Label19, Look::kPrimary, &Form1::Label19_Click,
                              "Loads what is chosen; without \"View\" it is installed at once"),
                      2);
  commands->addWidget(command("Label40", pane.Label40, Look::kButton, &Form1::Label40_Click,
                              "Closes the pane and loads nothing (Escape)"),
                      1);
  auto* layout = new QVBoxLayout(board_);
  layout->setContentsMargins(16, 14, 16, 16);
  layout->setSpacing(10);
  layout->addLayout(lists, 1);
  layout->addWidget(hint("ViewHint", [&pane] {
    return QString(pane.Check1.checked
                       ? "\"View\" is ticked: the set-ups are loaded into the tables only."
                       : "\"View\" is not ticked: the set-ups are loaded and installed at once.");
  }));
  layout->addLayout(commands);
  frame_->content()->addWidget(board_, 1);
}

/// The name that is chosen in a list. A click on it, or Delete in the list, takes the choice back.
ActionLabel* LoadPaneView::chosen(const char* name, const Label& data, ListView& list, Click take_back) {
  auto* label = command(name, data, Look::kRow, take_back);
  label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  also([label, &data] {
    label->setEnabled(!data.caption.empty());
    label->setToolTip(theme::literal(
        data.caption.empty()
            ? QStringLiteral("No set-up is chosen")
            : QStringLiteral("%1: a click takes the choice back").arg(QString::fromStdString(data.caption))));
  });
  list.on_delete = [this, take_back] { run(take_back); };
  return label;
}

QLayout* LoadPaneView::column(TextLabel* heading, ListView* list, ActionLabel* chosen, CheckBox* box) {
  auto* choice = new QHBoxLayout;
  choice->addWidget(note("Chosen:"));
  choice->addWidget(chosen, 1);
  auto* layout = new QVBoxLayout;
  layout->setSpacing(8);
  layout->addWidget(heading);
  layout->addWidget(list, 1);
  layout->addLayout(choice);
  layout->addWidget(box);
  return layout;
}

}  // namespace

std::unique_ptr<PaneView> load_pane_view(Form1& form, const Perform& perform, QWidget* parent) {
  return std::make_unique<LoadPaneView>(form, perform, parent);
}

}  // namespace vorlund
