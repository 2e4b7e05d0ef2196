// Every control of the program by its name: the widget that stands for it shows the state that is kept under
// it.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <variant>

#include "window/aircraft_window.h"
#include "window/picture_view.h"

namespace vorlund::test {
namespace {

/// The state that holds a control.
using State = std::variant<Label*, TextBox*, Choice*, Frame*, Picture*, CellTable*, std::vector<std::string>*,
                           std::vector<Label>*>;

struct Control {
  QString name;
  State state;
};

std::vector<Control> controls_of_the_menu(Form1& f) {
  std::vector<Control> table = {{"Label6", &f.Label6},
                                {"Label26", &f.Label26},
                                {"WhatsLoaded", &f.WhatsLoaded},
                                {"DelMSN", &f.DelMSN},
                                {"Label18", &f.Label18},
                                {"Label5", &f.Label5},
                                {"Label7", &f.Label7},
                                {"ExitButton", &f.ExitButton},
                                {"Label16", &f.desk.directory.Label16},
                                {"Label17", &f.desk.directory.Label17},
                                {"Dir6", &f.desk.directory.Dir6.names},
                                {"Label2", &f.desk.labels.Label2},
                                {"Label41", &f.selection.Label41}};
  for (std::size_t index = 0; index < f.Label9.size(); ++index) {
    table.push_back({element_name("Label9", static_cast<int>(index)), &f.Label9[index]});
  }
  return table;
}

std::vector<Control> controls_of_the_game_pane(Form1& f) {
  return {{"GameFrame", &f.game.GameFrame},  {"G2", &f.game.G2},
          {"GameLoad", &f.game.GameLoad},    {"Label28", &f.game.Label28},
          {"Label29", &f.game.Label29},      {"Label11", &f.save_pane.Label11},
          {"Label12", &f.load_pane.Label12}, {"Label10(1)", &f.game.Label10}};
}

std::vector<Control> controls_of_the_aircraft_pane(Form1& f) {
  return {{"Frame1", &f.plane.Frame1},         {"G1", &f.plane.G1},
          {"Label8", &f.plane.Label8},         {"Label3", &f.plane.Label3},
          {"Label24", &f.plane.Label24},       {"Label25(0)", &f.plane.Label25[0]},
          {"Label25(1)", &f.plane.Label25[1]}, {"Label30", &f.plane.Label30},
          {"Option1(0)", &f.plane.Option1[0]}, {"Option1(2)", &f.plane.Option1[2]},
          {"Option1(3)", &f.plane.Option1[3]}, {"List2", &f.plane.List2.items},
          {"List3", &f.plane.List3.items},     {"Label14", &f.save_pane.Label14},
          {"Label13", &f.load_pane.Label13},   {"Label10(0)", &f.plane.Label10}};
}

std::vector<Control> controls_of_the_selection_pane(Form1& f) {
  SharedLabels& labels = f.desk.labels;
  f.selection.Text1.visible = true;  // what tells of a selection is shown with one
  return {{"Frame3", &f.selection.Frame3},
          {"Label1", &f.selection.Label1},
          {"Text1", &f.selection.Text1},
          {"Image1", &f.selection.Image1},
          {"Image3", &f.selection.Image3},
          {"GroupLabel", &labels.GroupLabel},
          {"FolderLabel", &labels.FolderLabel},
          {"Label27(0)", &f.selection.Label27[0]},
          {"Label27(1)", &f.selection.Label27[1]},
          {"Label42", &labels.Label42},
          {"Label43", &labels.Label43},
          {"Label44", &labels.Label44},
          {"Label45", &labels.Label45},
          {"SkinLab2", &labels.SkinLab2},
          {"Label10(2)", &f.selection.Label10}};
}

/// Shown with their pane alone.
std::vector<Control> selection_labels(Form1& f) {
  f.selection.Frame3.visible = true;
  return {{"SelLab", &f.selection.SelLab}};
}

std::vector<Control> controls_of_the_skins_pane(Form1& f) {
  PossibleSkins& pane = f.possible_skins;
  return {{"Frame4", &pane.Frame4},   {"List4", &pane.List4.items}, {"Label31", &pane.Label31},
          {"Label32", &pane.Label32}, {"Label33", &pane.Label33},   {"Label34", &pane.Label34},
          {"Label35", &pane.Label35}, {"Label36", &pane.Label36},   {"Label37", &pane.Label37},
          {"Label38", &pane.Label38}, {"Image4", &pane.Image4},     {"SkinLab3", &f.desk.labels.SkinLab3}};
}

std::vector<Control> controls_of_the_set_up_panes(Form1& f) {
  return {{"SaveFrame", &f.save_pane.SaveFrame},   {"Text2", &f.save_pane.Text2},
          {"Label22", &f.save_pane.Label22},       {"File5", &f.save_pane.File5.names},
          {"Label4", &f.save_pane.Label4},         {"Label39", &f.save_pane.Label39},
          {"Frame2", &f.load_pane.Frame2},         {"File2", &f.load_pane.File2.names},
          {"File3", &f.load_pane.File3.names},     {"Label22(0)", &f.load_pane.Label22[0]},
          {"Label22(1)", &f.load_pane.Label22[1]}, {"Label20", &f.load_pane.Label20},
          {"Label21", &f.load_pane.Label21},       {"Check1", &f.load_pane.Check1},
          {"Check2", &f.load_pane.Check2},         {"Label19", &f.load_pane.Label19},
          {"Label40", &f.load_pane.Label40},       {"Image2", &f.load_pane.Image2}};
}

std::vector<Control> controls_of_the_menu_editor(Form1& f) {
  MenuEditor& pane = f.menu_editor;
  std::vector<Control> table = {{"PMenFrame", &pane.PMenFrame},
                                {"MnuFrame", &pane.MnuFrame},
                                {"hedlab", &pane.hedlab},
                                {"PNameList", &f.plane.pilot_names.PNameList}};
  for (std::size_t index = 0; index < pane.CountryBut.size(); ++index) {
    table.push_back({element_name("CountryBut", static_cast<int>(index)), &pane.CountryBut[index]});
  }
  for (std::size_t index = 0; index < pane.bmnutb.size(); ++index) {
    const int element = static_cast<int>(index);
    table.push_back({element_name("bmnutb", element), &pane.bmnutb[index]});
    table.push_back({element_name("mlen", element), &pane.mlen[index]});
    table.push_back({element_name("position", element), &pane.position[index]});
  }
  return table;
}

class Controls : public AircraftWindow {
 protected:
  void show() {
    window().perform([] {});
  }

  /// Text that no control holds by itself.
  static constexpr char kProbe[] = "Probe \u00C9";

  /// The one widget of that name in the window.
  QWidget* only(const QString& name) {
    const QList<QWidget*> found = window().findChildren<QWidget*>(name);
    EXPECT_EQ(found.size(), 1) << name.toStdString();
    return found.isEmpty() ? nullptr : found.front();
  }

  QString shown_text(QWidget* shown) {
    if (auto* label = qobject_cast<QLabel*>(shown)) return label->text();
    if (auto* button = qobject_cast<QAbstractButton*>(shown)) return button->text();
    if (auto* line = qobject_cast<QLineEdit*>(shown)) return line->text();
    if (auto* text = qobject_cast<QPlainTextEdit*>(shown)) return text->toPlainText();
    return "a widget without text";
  }

  /// True when the probe stands anywhere in the widget's table or list.
  bool lists_probe(QWidget* shown) {
    auto* view = qobject_cast<QAbstractItemView*>(shown);
    if (view == nullptr) return false;
    const QAbstractItemModel& model = *view->model();
    for (int row = 0; row < model.rowCount(); ++row) {
      for (int column = 0; column < model.columnCount(); ++column) {
        if (model.index(row, column).data().toString().toStdString() == kProbe) return true;
      }
    }
    return false;
  }

  // What each kind of state must come out as.

  bool shows(QWidget* shown, Label* label) {
    label->visible = true;
    label->caption = kProbe;
    show();
    const bool visible = !shown->isHidden() && shown_text(shown).toStdString() == kProbe;
    label->visible = false;
    show();
    return visible && shown->isHidden();
  }

  bool shows(QWidget* shown, std::vector<Label>* labels) {
    labels->front().visible = true;
    labels->front().caption = kProbe;
    show();
    const bool visible = !shown->isHidden() && lists_probe(shown);
    labels->front().visible = false;
    show();
    return visible && !lists_probe(shown);
  }

  bool shows(QWidget* shown, TextBox* box) {
    box->text = kProbe;
    show();
    return shown_text(shown).toStdString() == kProbe;
  }

  bool shows(QWidget* shown, Choice* choice) {
    auto* button = qobject_cast<QAbstractButton*>(shown);
    choice->caption = kProbe;
    choice->checked = true;
    show();
    const bool set = button != nullptr && button->isChecked() && button->text().toStdString() == kProbe;
    choice->checked = false;
    show();
    return set && !button->isChecked();
  }

  bool shows(QWidget* shown, Frame* frame) {
    frame->visible = true;
    frame->caption = kProbe;
    show();
    const bool visible = !shown->isHidden();
    frame->visible = false;
    show();
    return visible && shown->isHidden();
  }

  bool shows(QWidget* shown, Picture* picture) {
    picture->visible = true;
    show();
    const bool visible = dynamic_cast<PictureView*>(shown) != nullptr && !shown->isHidden();
    picture->visible = false;
    show();
    return visible && shown->isHidden();
  }

  bool shows(QWidget* shown, CellTable* grid) {
    grid->add_row({"a", kProbe});
    show();
    return lists_probe(shown);
  }

  bool shows(QWidget* shown, std::vector<std::string>* list) {
    list->emplace_back(kProbe);
    show();
    return lists_probe(shown);
  }

  void check(std::vector<Control> (*controls)(Form1&)) {
    for (const Control& control : controls(form())) {
      QWidget* shown = only(control.name);
      if (shown == nullptr) continue;
      EXPECT_TRUE(std::visit([&](auto* state) { return shows(shown, state); }, control.state))
          << control.name.toStdString() << " does not show its state";
    }
  }
};

TEST_F(Controls, OfTheMainWindowAreItsWidgets) {
  EXPECT_EQ(window().objectName(), "Form1");
  check(controls_of_the_menu);
}

TEST_F(Controls, OfTheTablesAreTheirWidgets) {
  check(controls_of_the_game_pane);
  check(controls_of_the_aircraft_pane);
}

TEST_F(Controls, OfTheStorePanesAreTheirWidgets) {
  check(controls_of_the_selection_pane);
  check(selection_labels);
  check(controls_of_the_skins_pane);
}

TEST_F(Controls, OfTheSetUpPanesAreTheirWidgets) {
  check(controls_of_the_set_up_panes);
}

TEST_F(Controls, OfTheMenuEditorAreItsWidgets) {
  check(controls_of_the_menu_editor);
}

TEST_F(Controls, CarryTheCaptionsThatThePlayerKnows) {
  const std::vector<std::pair<QString, QString>> captions = {
      {"Label9(0)", "Make Aircraft Settings"},
      {"Label9(1)", "Make Game Settings"},
      {"Label9(2)", "Set the Flight Model"},
      {"Label9(3)", "Load saved set-ups"},
      {"WhatsLoaded", "Whats Loaded?"},
      {"DelMSN", "Delete \"Default.msn\" files from \"Savedata\""},
      {"Label18", "Fly!"},
      {"Label5", "Clean Up"},
      {"Label7", "Minimise"},
      {"ExitButton", "Exit"},
      {"Label17", "Please confirm your EAW directory:"},
      {"GameLoad", "Process!"},
      {"Label28", "Clear the selected row"},
      {"Label29", "Move the selected row to the end ( to load last)"},
      {"Label8", "Process!"},
      {"Label3", "Clear the selected row"},
      {"Label24", "Current flight model:"},
      {"Option1(0)", "Match skin to selected FM"},
      {"Option1(2)", "Edit Mode"},
      {"Option1(3)", "Find FM for selected slot"},
      {"Label10(0)", "Hide"},
      {"Label10(1)", "Hide"},
      {"Label10(2)", "Hide"},
      {"Label11", "Save"},
      {"Label14", "Save"},
      {"Label12", "Load"},
      {"Label13", "Load"},
      {"Label27(0)", "Hide picture"},
      {"Label27(1)", "Show/hide details"},
      {"Label36", "Skinslot:"},
      {"Label34", "Matching characters:"},
      {"Label33",
       "Single click in the list to view a picture (if any). Click the picture to select the skin listed. "
       "Click in "
       "this area to hide the pane"},
      {"Label22", "Existing files"},
      {"Label22(0)", "Gamesets"},
      {"Label22(1)", "Planesets"},
      {"Label4", "OK"},
      {"Label39", "Cancel"},
      {"Label40", "Cancel"},
      {"Check1", "View"},
      {"Check2", "View"},
      {"CountryBut(0)", "B"},
      {"CountryBut(1)", "A"},
      {"CountryBut(2)", "G"}};
  for (const auto& [name, caption] : captions) {
    EXPECT_EQ(shown_text(widget(name)), caption) << name.toStdString();
  }
  const std::vector<std::pair<QString, QString>> panes = {
      {"GameFrame", "Game Frame"},  {"Frame1", "Skin and flight model table"},
      {"Frame4", "Possible skins"}, {"Frame2", "Load saved set-ups"},
      {"SaveFrame", "Save set-up"}, {"MnuFrame", "Select Picplnb, Picplna, or Picplng.mnu to read/edit"},
      {"PMenFrame", "PMenFrame"},   {"Frame3", ""}};
  for (const auto& [name, caption] : panes) {
    EXPECT_EQ(widget(name)->accessibleName(), caption) << name.toStdString();
  }
  EXPECT_EQ(widget("Label17")->toolTip(), "Double click on it then click this label");
  EXPECT_EQ(widget("Image1")->accessibleName(), "Single click to load");
  EXPECT_EQ(widget("Image3")->accessibleName(), "Make a selection, or click here to hide");
  EXPECT_EQ(form().desk.labels.Label44.caption, "Current Slot Selection");
}

}  // namespace
}  // namespace vorlund::test
