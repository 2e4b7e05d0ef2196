// A walk through every pane at the usual sizes of screens, with a store of many groups and long names:
// nothing lies on top of anything, nothing of the program's own is cut, and every control can be reached and
// says what it is.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QScrollArea>
#include <QtTest/QTest>
#include <functional>

#include "base/code_page.h"
#include "window/action_label.h"
#include "window/aircraft_window.h"
#include "window/made_aircraft_game.h"
#include "window/pane_frame.h"

namespace vorlund::test {
namespace {

std::string long_name(const std::string& name) {
  std::string text = name;
  while (text.size() < 118) text += " und noch ein Wort";
  return text.substr(0, 118);
}

/// A stop of the walk.
struct Stop {
  const char* name;
  const char* pane;  ///< that is in front then, "" for none
  std::function<void()> reach;
};

class Walk : public AircraftWindow {
 protected:
  Walk() {
    for (int group = 100; group < 390; ++group) {
      folder.make_folder("~Vorlund/GameStore/Gruppe " + std::to_string(group));
    }
    for (int skin = 1000; skin < 3000; ++skin) {
      folder.make_folder("~Vorlund/SkinStore/Luftwaffe/Staffel " + std::to_string(skin));
    }
    folder.make_folder("~Vorlund/SkinStore/Luftwaffe/" + long_name("Stabsstaffel"));
    folder.make_folder("~Vorlund/GameStore/Himmel/" + long_name("\u00C4u\u00DFerst sch\u00F6n"));
    folder.write("~Vorlund/GameStore/Himmel/" + long_name("Ciel d'\u00E9t\u00E9") + "/contents.txt",
                 "Un ciel.\r\n");
    folder.write("~Vorlund/CurrentGameSet.txt",
                 "Folder group\tFolder name\r\nHimmel\tWinter\r\nSounds\tLoud\r\n");
    std::string planes =
        "Standard\r\nSlot\tRegion\tSkinFolder\tPlnDat\tScriptFolder\tPName$\tSide\tFlyable\tRole\tFuel %\r\n";
    for (int record = 0; record < 30; ++record) {
      planes += slot_code(record) + "\tAllied\t" + long_name("Staffelkapit\u00E4n") + "\t" +
                std::to_string(record) + "\t" + long_name("Mod\u00E8le de vol") + "\t" +
                long_name("J\u00E4ger") + "\tAmerican\tYes\tFighter\t100\r\n";
    }
    folder.write("~Vorlund/CurrentPlaneSet.txt", encode_text(planes));
    folder.write("~Vorlund/GameSetFiles/" + long_name("Sp\u00E4tsommer"), "Folder group\tFolder name\r\n");
    folder.write("~Vorlund/PlaneSetFiles/" + long_name("Printemps \u00E9"), planes);
    folder.write("eaw.exe", "MZ");
  }

  std::vector<Stop> stops() {
    const auto planes = [this] {
      click("Label9(0)");
      click("Label2");
    };
    const auto open = [this](const char* mode, const std::string& group) {
      click(mode);
      for (std::size_t index = 0; index < form().selection.Label1.size(); ++index) {
        if (form().selection.Label1[index].caption == group)
          window().perform([&] { form().Label1_Click(static_cast<int>(index)); });
      }
    };
    const auto open_group = [open] { open("Label9(1)", "Himmel"); };
    return {{"the menu", "", [] {}},
            {"game groups", "", [this] { click("Label9(1)"); }},
            {"skin groups", "", [this] { click("Label9(0)"); }},
            {"a group", "Frame3", open_group},
            {"a group of 2,000 skins", "Frame3", [open] { open("Label9(0)", "Luftwaffe"); }},
            {"a folder", "Frame3",
             [this, open_group] {
               open_group();
               window().perform([this] { form().SelLab_Click(1); });
               click("Label27(1)");
             }},
            {"game table", "GameFrame",
             [this] {
               click("Label9(1)");
               click("Label2");
             }},
            {"aircraft table", "Frame1", planes},
            {"aircraft table in edit mode", "Frame1",
             [this, planes] {
               planes();
               click("Option1(2)");
             }},
            {"both tables", "GameFrame", [this] { click("WhatsLoaded"); }},
            {"possible skins", "Frame4",
             [this, planes] {
               planes();
               click("Option1(2)");
               click_cell(1, PlaneTable::kRegion);
             }},
            {"save", "SaveFrame",
             [this, planes] {
               planes();
               click("Label14");
             }},
            {"load", "Frame2",
             [this] {
               click("Label9(3)");
               window().perform([this] {
                 form().File3_Click(0);
                 form().File2_Click(0);
               });
             }},
            {"menu editor", "PMenFrame",
             [this, planes] {
               planes();
               click("PictureMenus");
             }},
            {"contents", "ContentsFrame",
             [this] {
               click("Label9(1)");
               click("Label2");
               click("Contents(1)");
             }},
            {"help", "HelpFrame", [this] { click("HelpLabel"); }}};
  }

  /// Begins anew in a window of that size and goes to a stop.
  void go_to(const Stop& stop, const QSize& size) {
    restart();
    window().resize(size);
    QApplication::processEvents();
    stop.reach();
    QApplication::processEvents();
  }

  QRect place_of(const QWidget* control) { return {control->mapTo(&window(), QPoint()), control->size()}; }

  /// What of the control's place lies inside everything that it stands in.
  QRect open_place_of(const QWidget* control) {
    QRect place = place_of(control);
    for (const QWidget* parent = control->parentWidget(); parent != nullptr;
         parent = parent->parentWidget()) {
      place &= place_of(parent);
    }
    return place;
  }

  /// The pane that a control stands in, or the window.
  const QWidget* layer_of(const QWidget* control) {
    for (const QWidget* parent = control->parentWidget(); parent != nullptr;
         parent = parent->parentWidget()) {
      if (dynamic_cast<const PaneFrame*>(parent) != nullptr) return parent;
    }
    return &window();
  }

  /// Everything on the screen that shows a text in a place of its own.
  std::vector<QWidget*> texts() {
    std::vector<QWidget*> found;
    for (QWidget* control : window().findChildren<QWidget*>()) {
      const auto* label = qobject_cast<QLabel*>(control);
      const auto* button = qobject_cast<QAbstractButton*>(control);
      const QString text = label != nullptr ? label->text() : button != nullptr ? button->text() : QString();
      if (control->isVisible() && !text.isEmpty() && !open_place_of(control).isEmpty())
        found.push_back(control);
    }
    return found;
  }

  static bool shows_a_name_of_the_store(const QWidget* control) {
    for (const char* array : {"SelLab", "Label1(", "Label20", "Label21", "Label31"}) {
      if (control->objectName().startsWith(array)) return true;
    }
    return false;
  }

  static QString text_of(const QWidget* control) { return control->property("text").toString(); }

  /// What is said of a control, or of each entry of a list.
  static bool says_what_it_does(const QWidget* control) {
    if (!control->toolTip().isEmpty()) return true;
    const auto* view = qobject_cast<const QAbstractItemView*>(control);
    if (view == nullptr || view->model()->rowCount() == 0) return false;
    return !view->model()->index(0, 0).data(Qt::ToolTipRole).toString().isEmpty();
  }

  /// The controls on the screen that the keyboard reaches.
  static std::vector<QWidget*> reached_by_keyboard(const QWidget* where) {
    std::vector<QWidget*> controls;
    for (QWidget* control : where->findChildren<QWidget*>()) {
      if (!control->isVisible() || (control->focusPolicy() & Qt::TabFocus) == 0 || !control->isEnabled()) {
        continue;
      }
      if (!control->objectName().startsWith("qt_")) controls.push_back(control);
    }
    return controls;
  }

  void expect_that_no_two_texts_overlap() {
    const std::vector<QWidget*> shown = texts();
    ASSERT_GT(shown.size(), 8U);
    for (std::size_t one = 0; one < shown.size(); ++one) {
      for (std::size_t other = one + 1; other < shown.size(); ++other) {
        if (layer_of(shown[one]) != layer_of(shown[other])) continue;
        if (shown[one]->isAncestorOf(shown[other]) || shown[other]->isAncestorOf(shown[one])) continue;
        EXPECT_TRUE((open_place_of(shown[one]) & open_place_of(shown[other])).isEmpty())
            << text_of(shown[one]).toStdString() << " and " << text_of(shown[other]).toStdString();
      }
    }
  }

  void expect_that_panes_leave_menu_strip_and_status_line_free() {
    const QRect status = place_of(widget("StatusLine")->parentWidget());
    for (const char* name : {"GameFrame", "Frame1", "Frame3", "Frame4", "Frame2", "SaveFrame", "PMenFrame",
                             "ContentsFrame", "HelpFrame"}) {
      QWidget* const frame = window().findChild<QWidget*>(name);
      if (frame == nullptr || !frame->isVisible()) continue;
      const QRect pane = place_of(frame);
      EXPECT_FALSE(pane.intersects(status)) << name;
      EXPECT_TRUE(window().rect().contains(pane)) << name;
      if (QString(name) == "Frame3") continue;
      for (const QAbstractButton* label :
           window().findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!label->isVisible()) continue;
        EXPECT_FALSE(pane.intersects(place_of(label))) << name << " and " << label->text().toStdString();
      }
    }
    for (const char* strip : {"Label2", "Label41"}) {
      if (!sees(strip)) continue;
      for (const QWidget* text : texts()) {
        if (text != widget(strip)) {
          EXPECT_FALSE(place_of(widget(strip)).intersects(open_place_of(text)))
              << strip << " and " << text_of(text).toStdString();
        }
      }
    }
  }

  void expect_that_nothing_of_the_programs_own_is_cut() {
    for (const QWidget* control : texts()) {
      const QString text = text_of(control);
      const std::string name = control->objectName().toStdString() + " \"" + text.toStdString() + "\"";
      if (const auto* button = dynamic_cast<const ActionLabel*>(control)) {
        if (shows_a_name_of_the_store(button)) continue;
        const int lines = button->height() / button->fontMetrics().lineSpacing();
        EXPECT_TRUE(button->width() >= button->sizeHint().width() || lines >= 2) << name;
        EXPECT_EQ(open_place_of(button), place_of(button)) << name;
      } else if (const auto* label = qobject_cast<const QLabel*>(control);
                 label != nullptr && label->wordWrap()) {
        EXPECT_GE(label->height(), label->heightForWidth(label->width()) - 1) << name;
      } else if (qobject_cast<const QAbstractButton*>(control) != nullptr) {
        EXPECT_GE(control->width(), control->fontMetrics().horizontalAdvance(text)) << name;
      }
    }
  }

  void expect_that_short_columns_and_headers_are_whole() {
    if (!sees("Frame1")) return;
    const auto* view = static_cast<GridView*>(widget("G1"));
    int total = 0;
    for (int column = 0; column < PlaneTable::kColumns; ++column) {
      const bool is_short =
          column == PlaneTable::kSlot || column == PlaneTable::kRecordNumber || column >= PlaneTable::kSide;
      const int rows = is_short ? table().row_count() : 1;
      for (int row = 0; row < rows; ++row) {
        const QString cell =
            QString::fromStdString(row == 0 ? PlaneTable().cell(0, column) : table().cell(row, column));
        EXPECT_GE(view->columnWidth(column), view->fontMetrics().horizontalAdvance(cell) + 14)
            << cell.toStdString();
      }
      total += view->columnWidth(column);
    }
    EXPECT_LE(total, view->viewport()->width());
  }

  void expect_that_every_control_says_what_it_is_and_does() {
    const std::vector<QWidget*> controls = reached_by_keyboard(&window());
    EXPECT_GE(controls.size(), 5U);
    for (QWidget* control : controls) {
      const std::string name = control->objectName().toStdString();
      QAccessibleInterface* told = QAccessible::queryAccessibleInterface(control);
      ASSERT_NE(told, nullptr) << name;
      EXPECT_NE(told->text(QAccessible::Name), "") << name;
      EXPECT_TRUE(told->role() != QAccessible::Client && told->role() != QAccessible::NoRole) << name;
      EXPECT_TRUE(says_what_it_does(control)) << name << " has no tooltip";
    }
  }

  void expect_that_the_focus_is_seen_in(const QWidget* pane) {
    for (QWidget* control : reached_by_keyboard(pane)) {
      if (open_place_of(control) != place_of(control)) continue;
      control->clearFocus();
      QApplication::processEvents();
      const QImage without = control->grab().toImage();
      control->setFocus(Qt::TabFocusReason);
      QApplication::processEvents();
      EXPECT_NE(control->grab().toImage(), without) << control->objectName().toStdString();
    }
  }
};

class WalkAtSize : public Walk, public testing::WithParamInterface<QSize> {};

TEST_P(WalkAtSize, FindsEveryPaneInOrder) {
  for (const Stop& stop : stops()) {
    SCOPED_TRACE(stop.name);
    go_to(stop, GetParam());
    expect_that_no_two_texts_overlap();
    expect_that_panes_leave_menu_strip_and_status_line_free();
    expect_that_nothing_of_the_programs_own_is_cut();
    expect_that_short_columns_and_headers_are_whole();
    expect_that_every_control_says_what_it_is_and_does();
    if (*stop.pane != '\0') expect_that_the_focus_is_seen_in(widget(stop.pane));
    if (HasFatalFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, WalkAtSize,
                         testing::Values(QSize(1024, 768), QSize(1366, 768), QSize(1920, 1080)),
                         [](const testing::TestParamInfo<QSize>& size) {
                           return std::to_string(size.param.width()) + "x" +
                                  std::to_string(size.param.height());
                         });

/// Name and role of everything below an object, as a screen reader meets it.
void tell(QAccessibleInterface* object, std::map<QString, QAccessible::Role>& told) {
  for (int index = 0; index < object->childCount(); ++index) {
    QAccessibleInterface* child = object->child(index);
    if (child == nullptr) continue;
    const QString name = child->text(QAccessible::Name);
    // A heading may bear the name of the list below it.
    if (!name.isEmpty() && (!told.contains(name) || told[name] == QAccessible::StaticText)) {
      told[name] = child->role();
    }
    if (child->role() != QAccessible::Table && child->role() != QAccessible::List) tell(child, told);
  }
}

TEST_F(Walk, AScreenReaderMeetsPanesTablesListsAndCommandsByTheirCaptions) {
  restart();
  window().resize(1920, 1080);
  const auto told = [this](const char* pane) {
    std::map<QString, QAccessible::Role> names;
    tell(QAccessible::queryAccessibleInterface(widget(pane)), names);
    QAccessibleInterface* self = QAccessible::queryAccessibleInterface(widget(pane));
    names.emplace(self->text(QAccessible::Name), self->role());
    return names;
  };
  click("WhatsLoaded");
  auto game = told("GameFrame");
  EXPECT_EQ(game["Game Frame"], QAccessible::Table) << "the pane and its table share the caption";
  EXPECT_EQ(game["Process!"], QAccessible::Button);
  auto plane = told("Frame1");
  EXPECT_EQ(plane["Skin and flight model table"], QAccessible::Table);
  EXPECT_EQ(plane["Edit Mode"], QAccessible::RadioButton);
  EXPECT_EQ(plane["Clear the selected row"], QAccessible::Button);
  click("Label9(3)");
  auto load = told("Frame2");
  EXPECT_EQ(load["Load saved set-ups"], QAccessible::Grouping);
  EXPECT_EQ(load["Gamesets"], QAccessible::List);
  EXPECT_EQ(load["Planesets"], QAccessible::List);
  EXPECT_EQ(load["View"], QAccessible::CheckBox);
  QTest::keyClick(&window(), Qt::Key_Escape);
  click("Label11");
  auto save = told("SaveFrame");
  EXPECT_EQ(save["Save set-up"], QAccessible::Grouping);
  EXPECT_EQ(save["Name to save under"], QAccessible::EditableText);
  EXPECT_EQ(save["Existing files"], QAccessible::List);
  QTest::keyClick(&window(), Qt::Key_Escape);
  click("PictureMenus");
  auto menus = told("PMenFrame");
  EXPECT_EQ(menus["Name of entry 1"], QAccessible::EditableText);
  EXPECT_EQ(menus["Display names by record"], QAccessible::List);
  for (int pane = 0; pane < 3; ++pane) QTest::keyClick(&window(), Qt::Key_Escape);
  click("Label9(0)");
  click("Label1(0)");
  click("SelLab(0)");
  auto selection = told("Frame3");
  EXPECT_EQ(selection["Single click to load"], QAccessible::Button);
  EXPECT_EQ(selection["Hide picture"], QAccessible::Button);
}

}  // namespace
}  // namespace vorlund::test
