// Declares the controls of the aircraft pane and lays them out.
#include <QBoxLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>
#include <vector>

#include "window/grid_view.h"
#include "window/pane_layout.h"
#include "window/theme.h"
#include "window/views.h"

namespace vorlund {

namespace {

constexpr int kListWidth = 164;
constexpr int kListHeight = 110;
constexpr int kAroundTable = 30;  // pixels of the pane left and right of it
constexpr int kBetween = 12;

QString explanation(int column) {
  switch (column) {
    case PlaneTable::kSlot:
      return "The game's code of the aircraft that is replaced";
    case PlaneTable::kRegion:
      return "The group of the skin in \"SkinStore\"";
    case PlaneTable::kSkinFolder:
      return "The folder of the skin in its group";
    case PlaneTable::kRecordNumber:
      return "Number of the aircraft's record in the game's files, 0 to 29";
    case PlaneTable::kScriptFolder:
      return "The flight model: a folder of the flight-model group";
    case PlaneTable::kPlaneName:
      return "The name that the game shows";
    case PlaneTable::kFuel:
      return "Fuel in percent of the flight model's own";
    default:
      return "In edit mode a click changes the value";
  }
}

/// View of PlanePane's `Frame1` and of the two lists that its option buttons switch between.
class PlanePaneView : public PaneView {
 public:
  PlanePaneView(Form1& form, const Perform& perform, QWidget* parent);
  void apply() override;
  QSize least_size(int width) override;

 private:
  GridView* make_table();
  QLayout* lay_out_table(GridView* table);
  QLayout* lay_out_options();
  QLayout* lay_out_commands();
  /// Puts the lists beside the table where the pane is wide enough, else below it.
  void lay_out_for(int width);

  [[nodiscard]] bool acts(int row, int column) const;
  [[nodiscard]] QString advice() const;

  GridView* table_ = nullptr;
  QBoxLayout* both_ = nullptr;  ///< table and lists
  std::vector<ListView*> lists_;
};

PlanePaneView::PlanePaneView(Form1& form, const Perform& perform, QWidget* parent) : PaneView(form, perform) {
  const PlanePane& pane = form.plane;
  dragged_frame("Frame1", pane.Frame1, parent, &Form1::Frame1_MouseDown, &Form1::Frame1_MouseUp,
                [this] { run(&Form1::Label10_Click, 0); });
  static const Label kMenus{"Picture menus..."};
  auto* group_heading = text("Label24", pane.Label24, Tone::kQuiet);
  auto* group = text("Label25(0)", pane.Label25[0], Tone::kStrong);
  auto* menus = command("PictureMenus", kMenus, Look::kButton, &Form1::PictureMenus_Click,
                        "Shows the names in the game's plane-picture menus");
  auto* show_all = command("Label30", pane.Label30, Look::kButton, &Form1::Label30_Click,
                           "Shows all thirty slots, or only those that hold something");
  auto* heading = new QHBoxLayout;
  heading->addWidget(group_heading);
  heading->addWidget(group);
  heading->addStretch(1);
  heading->addWidget(command("Contents(2)", form.contents.Contents[2], Look::kButton, &Form1::Contents_Click,
                             "Shows what \"Process!\" would write, and where each file comes from"));
  heading->addWidget(menus);
  heading->addWidget(show_all);

  frame_->content()->addLayout(heading);
  frame_->content()->addLayout(lay_out_options());
  frame_->content()->addLayout(lay_out_table(make_table()), 1);
  frame_->content()->addWidget(hint("OptionHint", [this] { return advice(); }));
  frame_->content()->addLayout(lay_out_commands());
}

GridView* PlanePaneView::make_table() {
  auto* table =
      new GridView("G1", "Skin and flight model table", form_.plane.G1, PlanePane::kColumnWidths, frame_);
  const auto press = [this](int row, int column) { run(&Form1::G1_MouseDown, row, column, MouseEvent()); };
  table->on_click = press;
  table->on_move = [this](int row, int column) { run(&Form1::G1_Move, row, column); };
  table->horizontalHeader()->setSectionsClickable(true);
  QObject::connect(table->horizontalHeader(), &QHeaderView::sectionPressed, table,
                   [press](int column) { press(0, column); });
  table->grid_model().cycles = [this](int row, int column) { return acts(row, column); };
  table->grid_model().explains = explanation;
  table->share_columns({PlaneTable::kSlot, PlaneTable::kRecordNumber, PlaneTable::kSide, PlaneTable::kFlyable,
                        PlaneTable::kRole, PlaneTable::kFuel});
  table->on_delete = [this] { run(&Form1::Label3_Click); };
  table->setToolTip("The aircraft slots of the game, each with its skin and flight model");
  table_ = table;
  also([table, this] {
    table->set_empty_text(
        form_.plane.G1.row_count() > 1
            ? "No slot is in use yet: \"Show All\" shows all of them"
            : "This set has no slots: \"Make Aircraft Settings\" in the menu makes all thirty");
    table->apply();
  });
  return table;
}

QLayout* PlanePaneView::lay_out_options() {
  auto* options = new QHBoxLayout;
  options->setSpacing(22);
  for (const PlaneOption option_kind :
       {PlaneOption::kFindFlightModel, PlaneOption::kEditMode, PlaneOption::kMatchSkin}) {
    const int index = static_cast<int>(option_kind);
    const Choice& data = form_.plane.Option1[static_cast<std::size_t>(index)];
    auto* button = option("Option1", index, data, &Form1::Option1_Click);
    button->setToolTip(
        option_kind == PlaneOption::kFindFlightModel ? "A click in the list gives the slot its flight model"
        : option_kind == PlaneOption::kEditMode      ? "A click in the table changes a value"
                                                     : "A click in the list shows skins of like names");
    options->addWidget(button);
  }
  options->addStretch(1);
  return options;
}

QLayout* PlanePaneView::lay_out_table(GridView* table) {
  PlanePane& pane = form_.plane;
  auto* heading = note({});
  heading->setObjectName("ListHeading");
  also([heading, &pane] {
    heading->setText(pane.List3.visible                ? "Plane codes"
                     : !pane.List2.visible             ? "No flight models"
                     : pane.Label25[1].caption.empty() ? "Flight models"
                                                       : "Flight models of");
  });
  auto* group = text("Label25(1)", pane.Label25[1], Tone::kStrong);
  also([group, &pane] { group->setVisible(pane.Label25[1].visible && pane.List2.visible); });
  auto* flight_models = list("List2", "Flight models", pane.List2, &Form1::List2_Click,
                             "\"Make Aircraft Settings\" in the menu lists the flight models");
  auto* plane_codes = list("List3", "Plane codes", pane.List3, &Form1::List3_Click, {});
  flight_models->setToolTip("What a click does is chosen above the table");
  plane_codes->setToolTip("A click gives the selected slot the number of this code as its PlnDat");

  auto* lists = new QVBoxLayout;
  lists->setSpacing(4);
  lists->addWidget(heading);
  lists->addWidget(group);
  for (ListView* view : {flight_models, plane_codes}) {
    lists->addWidget(view, 1);
    lists_.push_back(view);
  }
  auto* both = new QHBoxLayout;
  both_ = both;
  both->setSpacing(kBetween);
  both->addWidget(table, 1);
  both->addLayout(lists);
  return both;
}

QLayout* PlanePaneView::lay_out_commands() {
  const PlanePane& pane = form_.plane;
  auto* process = command("Label8", pane.Label8, Look::kPrimary, &Form1::Label8_Click,
                          "Copies skins and flight models into the game folder and writes the game's files");
  also([process, this, &pane] {
    process->set_look(is_at_hand(form_, pane.Frame1) ? Look::kPrimary : Look::kButton);
  });
  auto* commands = new QHBoxLayout;
  commands->addWidget(process, 2);
  commands->addWidget(
      command("Label3", pane.Label3, Look::kButton, &Form1::Label3_Click,
              "Takes skin and flight model out of the slot (Delete); files stay until \"Clean Up\""),
      1);
  commands->addWidget(command("Label14", form_.save_pane.Label14, Look::kButton, &Form1::Label14_Click,
                              "Saves the aircraft table under a name"),
                      1);
  commands->addWidget(command("Label13", form_.load_pane.Label13, Look::kButton, &Form1::Label13_Click,
                              "Shows the saved set-ups"),
                      1);
  commands->addWidget(command("Label10", 0, pane.Label10, Look::kButton, &Form1::Label10_Click,
                              "Hides the aircraft table (Escape)"),
                      1);
  return commands;
}

bool PlanePaneView::acts(int row, int column) const {
  if (row == 0 || !form_.plane.is_set(PlaneOption::kEditMode)) return false;
  switch (column) {
    case PlaneTable::kRegion:
    case PlaneTable::kSkinFolder:
      return true;
    case PlaneTable::kSide:
    case PlaneTable::kFlyable:
    case PlaneTable::kRole:
    case PlaneTable::kFuel:
      return !form_.plane.G1.cell(row, column).empty();
    default:
      return false;
  }
}

QString PlanePaneView::advice() const {
  if (form_.plane.is_set(PlaneOption::kEditMode)) {
    return "Click a golden value to change it, a region or skin to see the skins that fit; a code sets "
           "PlnDat.";
  }
  if (form_.plane.is_set(PlaneOption::kFindFlightModel)) {
    return "Click a slot in the table, then the flight model that it shall have.";
  }
  if (form_.plane.is_set(PlaneOption::kMatchSkin)) {
    return "Click a flight model to see the skins whose names are like its own.";
  }
  return "Choose above what a click in the table or in the list does.";
}

void PlanePaneView::lay_out_for(int width) {
  const bool beside = width >= kAroundTable + table_->minimumSizeHint().width() + kBetween + kListWidth;
  both_->setDirection(beside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  for (ListView* list : lists_) {
    list->setMinimumSize(beside ? kListWidth : 0, beside ? 0 : kListHeight);
    list->setMaximumSize(beside ? kListWidth : QWIDGETSIZE_MAX, beside ? QWIDGETSIZE_MAX : kListHeight);
  }
}

QSize PlanePaneView::least_size(int width) {
  lay_out_for(width);
  return frame_->least_size();
}

void PlanePaneView::apply() {
  lay_out_for(theme::pixels(form_.plane.Frame1.place.width));
  PaneView::apply();
}

}  // namespace

std::unique_ptr<PaneView> plane_pane_view(Form1& form, const Perform& perform, QWidget* parent) {
  return std::make_unique<PlanePaneView>(form, perform, parent);
}

}  // namespace vorlund
