// Lays out the aircraft pane and ties its controls to the handlers.
#include "ui/window/plane_pane_view.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/window/theme.h"

namespace vorlund {

namespace {

constexpr int kListWidth = 164;

OptionButton* make_option(PlaneOption option, QWidget* parent) {
  return new OptionButton(element_name("Option1", static_cast<int>(option)), parent);
}

}  // namespace

PlanePaneView::PlanePaneView(Form1& form, const Perform& perform, QWidget* parent)
    : form_(form),
      frame_(new PaneFrame("Frame1", PaneFrame::FreeArea::kMoves, parent)),
      group_heading_(new TextLabel("Label24", TextLabel::Tone::kQuiet, frame_)),
      group_(new TextLabel("Label25(0)", TextLabel::Tone::kStrong, frame_)),
      show_all_(new ActionLabel("Label30", ActionLabel::Look::kButton, frame_)),
      menus_(new ActionLabel("PictureMenus", ActionLabel::Look::kButton, frame_)),
      options_({{PlaneOption::kFindFlightModel, make_option(PlaneOption::kFindFlightModel, frame_)},
                {PlaneOption::kEditMode, make_option(PlaneOption::kEditMode, frame_)},
                {PlaneOption::kMatchSkin, make_option(PlaneOption::kMatchSkin, frame_)}}),
      table_(new GridView("G1", form.plane.table.G1, frame_)),
      list_heading_(new TextLabel("ListHeading", TextLabel::Tone::kQuiet, frame_)),
      list_group_(new TextLabel("Label25(1)", TextLabel::Tone::kStrong, frame_)),
      flight_models_(new ListView("List2", "Flight models", form.lists.List2.items, frame_)),
      plane_codes_(new ListView("List3", "Plane codes", form.lists.List3.items, frame_)),
      hint_(new QLabel(frame_)),
      process_(new ActionLabel("Label8", ActionLabel::Look::kPrimary, frame_)),
      clear_(new ActionLabel("Label3", ActionLabel::Look::kButton, frame_)),
      save_(new ActionLabel("Label14", ActionLabel::Look::kButton, frame_)),
      load_(new ActionLabel("Label13", ActionLabel::Look::kButton, frame_)),
      hide_(new ActionLabel("Label10(0)", ActionLabel::Look::kButton, frame_)) {
  Form1* f = &form_;
  frame_->on_press = [f, perform](const MouseEvent& e) { perform([&] { f->plane.Frame1_MouseDown(e); }); };
  frame_->on_release = [f, perform](const MouseEvent& e) { perform([&] { f->plane.Frame1_MouseUp(e); }); };
  connect_table(perform);
  connect_lists(perform);
  connect_commands(perform);
  lay_out();
}

void PlanePaneView::connect_table(const Perform& perform) {
  Form1* f = &form_;
  const auto press = [f, perform](int row, int column) {
    perform([&] { f->plane.G1_MouseDown(row, column); });
  };
  table_->setAccessibleName("Skin and flight model table");
  table_->on_click = press;
  table_->on_move = [f, perform](int row, int column) {
    perform([&] { f->plane.table.select(row, column); });
  };
  table_->horizontalHeader()->setSectionsClickable(true);
  QObject::connect(table_->horizontalHeader(), &QHeaderView::sectionPressed, table_,
                   [press](int column) { press(0, column); });
  table_->grid_model().cycles = [this](int row, int column) { return acts(row, column); };
  table_->share_columns();
  table_->set_empty_text("No slot is in use yet: \"Show All\" shows all thirty");
}

void PlanePaneView::connect_lists(const Perform& perform) {
  Form1* f = &form_;
  flight_models_->on_select = [f, perform](int index) {
    perform([&] {
      f->lists.List2.selected = index;
      f->browser.List2_Click();
    });
  };
  flight_models_->set_empty_text("\"Make Aircraft Settings\" in the menu lists the flight models");
  plane_codes_->on_select = [f, perform](int index) {
    perform([&] {
      f->lists.List3.selected = index;
      f->browser.List3_Click();
    });
  };
  for (const OptionView& shown : options_) {
    const int index = static_cast<int>(shown.option);
    shown.button->on_click = [f, perform, index] { perform([&] { f->browser.Option1_Click(index); }); };
  }
}

void PlanePaneView::connect_commands(const Perform& perform) {
  Form1* f = &form_;
  const auto command = [&perform](ActionLabel* label, auto handler) {
    label->on_release = [perform, handler](const MouseEvent&) { perform(handler); };
  };
  command(show_all_, [f] { f->plane.Label30_Click(); });
  command(menus_, [f] { f->menu_editor.show(); });
  command(process_, [f] { f->plane.Label8_Click(); });
  command(clear_, [f] { f->Label3_Click(); });
  command(save_, [f] { f->save_pane.Label14_Click(); });
  command(load_, [f] { f->load_pane.Label13_Click(); });
  command(hide_, [f] { f->plane.Label10_Click(); });
  menus_->apply({"Picture menus..."});
  menus_->setToolTip("Shows the names in the game's plane-picture menus");
  show_all_->setToolTip("Shows all thirty slots, or only those that hold something");
}

void PlanePaneView::lay_out() {
  hint_->setObjectName("OptionHint");
  hint_->setTextFormat(Qt::PlainText);
  hint_->setStyleSheet(QStringLiteral("color: %1;").arg(theme::kQuietText.name()));

  auto* heading = new QHBoxLayout;
  heading->addWidget(group_heading_);
  heading->addWidget(group_);
  heading->addStretch(1);
  heading->addWidget(menus_);
  heading->addWidget(show_all_);
  auto* options = new QHBoxLayout;
  options->setSpacing(22);
  for (const OptionView& shown : options_) options->addWidget(shown.button);
  options->addStretch(1);

  auto* list = new QVBoxLayout;
  list->setSpacing(4);
  for (QWidget* widget : std::initializer_list<QWidget*>{list_heading_, list_group_}) list->addWidget(widget);
  for (ListView* view : {flight_models_, plane_codes_}) {
    view->setFixedWidth(kListWidth);
    list->addWidget(view, 1);
  }
  auto* both = new QHBoxLayout;
  both->setSpacing(12);
  both->addWidget(table_, 1);
  both->addLayout(list);

  auto* commands = new QHBoxLayout;
  commands->addWidget(process_, 2);
  for (ActionLabel* label : {clear_, save_, load_, hide_}) commands->addWidget(label, 1);

  frame_->content()->addLayout(heading);
  frame_->content()->addLayout(options);
  frame_->content()->addLayout(both, 1);
  frame_->content()->addWidget(hint_);
  frame_->content()->addLayout(commands);
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
      return !form_.plane.table.G1.cell(row, column).empty();
    default:
      return false;
  }
}

QString PlanePaneView::hint() const {
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

void PlanePaneView::apply() {
  const PlanePane& pane = form_.plane;
  fit_to_room(form_.plane.Frame1, *frame_->parentWidget(), QSize(1320, 1000));
  group_heading_->apply(pane.Label24);
  group_->apply(pane.table.Label25[0]);
  list_group_->apply(pane.table.Label25[1]);
  list_group_->setVisible(pane.table.Label25[1].visible && form_.lists.List2.visible);
  list_heading_->setText(form_.lists.List3.visible   ? "Plane codes"
                         : form_.lists.List2.visible ? "Flight models of"
                                                     : "No flight models");
  show_all_->apply(pane.table.Label30);
  for (const OptionView& shown : options_) {
    shown.button->apply(pane.Option1[static_cast<std::size_t>(shown.option)]);
  }
  flight_models_->apply(form_.lists.List2.selected);
  flight_models_->setVisible(form_.lists.List2.visible);
  plane_codes_->apply(form_.lists.List3.selected);
  plane_codes_->setVisible(form_.lists.List3.visible);
  hint_->setText(hint());
  process_->apply(pane.Label8);
  clear_->apply(pane.Label3);
  save_->apply(form_.save_pane.Label14);
  load_->apply(form_.load_pane.Label13);
  hide_->apply(pane.Label10);
  table_->apply();
  frame_->apply(pane.Frame1);
}

}  // namespace vorlund
