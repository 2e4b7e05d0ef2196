// Every event handler by its name: a real event on its control has its effect.
#include <QApplication>
#include <QListView>
#include <QtTest/QTest>
#include <filesystem>
#include <functional>

#include "window/aircraft_window.h"
#include "window/made_aircraft_game.h"

namespace vorlund::test {
namespace {

using Step = std::function<void()>;
using Effect = std::function<bool()>;

struct Handler {
  const char* name;  ///< the handlers that the event runs
  Step prepare;      ///< brings the program to where the event can happen
  Step event;
  Effect effect;  ///< not there before the event, there after it
};

std::string game_set() {
  return "Folder group\tFolder name\r\nSounds\tLoud\r\nSky\tDusk\r\n";
}

std::string plane_set() {
  std::string text =
      "Standard\r\nSlot\tRegion\tSkinFolder\tPlnDat\tScriptFolder\tPName$\tSide\tFlyable\tRole\tFuel %\r\n"
      "P38H\tAllied\tWings P38H\t0\tFM P38H\tLightning\tAmerican\tYes\tFighter\t100\r\n";
  for (int record = 1; record < 30; ++record) text += slot_code(record) + "\t\t\t\t\t\t\t\t\t\r\n";
  return text;
}

class Handlers : public AircraftWindow {
 protected:
  Handlers() {
    // A program that tells where it was started: `#!` on Linux.
    folder.write("eaw.exe", "#!/bin/sh\necho flown > flown\n");
#ifndef _WIN32
    std::filesystem::permissions(folder.path() + "/eaw.exe", std::filesystem::perms::owner_all);
#endif
  }

  /// Brings the folder and the program to where each row starts.
  void start_row() {
    make_aircraft_game(folder);
    folder.write("~Vorlund/GameStore/Sky/Dusk/sky.pal", "dusk");
    folder.write("~Vorlund/GameStore/Sky/Dusk/contents.txt", "Red\r\n");
    folder.write("~Vorlund/CurrentGameSet.txt", game_set());
    folder.write("~Vorlund/CurrentPlaneSet.txt", plane_set());
    folder.write("~Vorlund/GameSetFiles/Quiet", "Folder group\tFolder name\r\nSky\tDusk\r\n");
    folder.write("~Vorlund/PlaneSetFiles/Early", plane_set());
    folder.write("loose.pal", "loose");
    folder.write("Savedata/Default1.msn", "mission");
    restart();
  }

  void check(const std::vector<Handler>& handlers) {
    for (const Handler& handler : handlers) {
      SCOPED_TRACE(handler.name);
      start_row();
      if (handler.prepare) handler.prepare();
      EXPECT_FALSE(handler.effect()) << "the effect is there before the event";
      handler.event();
      EXPECT_TRUE(handler.effect()) << "the event has no effect";
      EXPECT_EQ(error, "");
    }
  }

  // Events.

  Step clicks(const char* name) {
    return [this, name] { click(name); };
  }

  Step clicks_entry(const char* list, int index) {
    return [this, list, index] { click_entry(list, index); };
  }

  Step drags(const char* name) {
    return [this, name] { drag(name, {40, 8}, {30, 20}, Qt::LeftButton); };
  }

  /// Clicks what lies in front at a point of a widget, as the mouse does; the event goes up from there.
  void click_what_lies_at(QWidget* area, const QPoint& point) {
    QApplication::processEvents();
    const QPoint spot = area->mapTo(&window(), point);
    QWidget* hit = window().childAt(spot);
    ASSERT_NE(hit, nullptr);
    QTest::mouseClick(hit, Qt::LeftButton, Qt::NoModifier, hit->mapFrom(&window(), spot));
  }

  /// Clicks the free rim of a pane.
  Step clicks_rim(const char* name) {
    return [this, name] { click_what_lies_at(widget(name), {5, widget(name)->height() / 2}); };
  }

  // Places to start from.

  void ask_for_directory() {
    form().desk.directory.Label17.visible = form().desk.directory.Label16.visible =
        form().desk.directory.Dir6.visible = true;
    window().perform([] {});
  }

  /// Empties a label on the screen, so that what fills it is seen.
  void blank(Label& label) {
    label.caption.clear();
    window().perform([] {});
  }

  void open_game_pane() {
    click("WhatsLoaded");
    auto* view = static_cast<GridView*>(widget("G2"));
    click_at(view->viewport(), view->visualRect(view->grid_model().index(0, 1)).center());
  }

  void open_all_slots() {
    open_aircraft_pane();
    click("Label30");
  }

  void open_skin_group() {
    click("Label9(0)");
    click("Label1(1)");
  }

  void view_skin() {
    open_skin_group();
    click("SelLab(0)");
  }

  void open_possible_skins() {
    open_all_slots();
    click("Option1(2)");
    click_cell(2, PlaneTable::kRegion);
  }

  void open_save_pane() {
    click("WhatsLoaded");
    click("Label11");
  }

  void open_menu_editor() {
    open_aircraft_pane();
    click("PictureMenus");
  }

  const CellTable& games() {
    return form().game.G2;
  }

  int start_ = 0;  ///< where a pane stood before it was dragged
};

TEST_F(Handlers, OfTheStartAndTheGameDirectory) {
  check({{"Form_Load", [this] { blank(form().Label26); }, [this] { restart(); },
          [this] { return text("Label26") == "Version 1.0.60"; }},
         {"Dir6_Change", [this] { ask_for_directory(); },
          [this] {
            auto* list = static_cast<QListView*>(widget("Dir6"));
            const auto found = list->model()->match(list->model()->index(0, 0), Qt::DisplayRole, "Savedata");
            ASSERT_EQ(found.size(), 1);
            const QPoint centre = list->visualRect(found[0]).center();
            QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
            QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
          },
          [this] { return text("Label16").toStdString() == folder.path("Savedata"); }},
         {"Label17_Click", [this] { ask_for_directory(); }, clicks("Label17"),
          [this] { return !sees("Label17") && !sees("Label16") && !sees("Dir6"); }}});
}

TEST_F(Handlers, OfTheMenu) {
  check(
      {{"Label9_MouseUp(0)",
        {},
        clicks("Label9(0)"),
        [this] { return text("Label2") == "Show Plane Table" && form().plane.List2.items.size() == 30; }},
       {"Label9_MouseUp(1)", {}, clicks("Label9(1)"), [this] { return text("Label2") == "Show Game Table"; }},
       {"Label9_MouseUp(2)",
        {},
        clicks("Label9(2)"),
        [this] { return form().selection.Label1[0].caption == "Standard"; }},
       {"Label9_MouseUp(3)", {}, clicks("Label9(3)"), [this] { return sees("Frame2"); }},
       {"Label9_MouseDown, Label9_MouseUp",
        {},
        [this] {
          drag("Label9(2)", {30, 10}, {15, 30}, Qt::RightButton);
        },
        [this] { return form().Label9[2].place.left > form().Label9[1].place.left; }},
       {"Label6_MouseUp", {}, clicks("Label6"), [this] { return !sees("Label6") && !sees("Label26"); }}});
}

TEST_F(Handlers, OfTheCommands) {
  check({{"Label5_MouseUp, CleanUp", {}, clicks("Label5"), [this] { return !folder.has("loose.pal"); }},
         {"DelMSN_MouseUp", {}, clicks("DelMSN"), [this] { return !folder.has("Savedata/Default1.msn"); }},
         {"Label7_MouseUp", {}, clicks("Label7"), [this] { return window().isMinimized(); }},
         {"ExitButton_MouseUp", {}, clicks("ExitButton"), [this] { return form().ended; }},
         {"WhatsLoaded_Click",
          {},
          clicks("WhatsLoaded"),
          [this] { return sees("Frame1") && sees("GameFrame"); }},
         {"Form_MouseDown, Form_MouseUp",
          {},
          [this] {
            QTest::mousePress(&window(), Qt::LeftButton, Qt::NoModifier, {900, 500});
            QTest::mouseRelease(&window(), Qt::LeftButton, Qt::NoModifier, {930, 520});
          },
          [this] { return form().place.left != 1000; }}});
}

#ifndef _WIN32
TEST_F(Handlers, OfTheGamesStart) {
  check({{"Label18_MouseUp",
          {},
          [this] {
            click("Label18");
            EXPECT_TRUE(window().isMinimized());
            for (int wait = 0; wait < 200 && !folder.has("flown"); ++wait) QTest::qWait(20);
          },
          [this] { return folder.has("flown"); }}});
}
#endif

TEST_F(Handlers, OfTheGamePane) {
  const Step open = [this] { open_game_pane(); };
  check({{"GameLoad_Click", open, clicks("GameLoad"), [this] { return folder.has("boom.snd"); }},
         {"G2_Click", [this] { click("WhatsLoaded"); }, [this] { open_game_pane(); },
          [this] { return games().current_row == 1; }},
         {"Label28_Click", open, clicks("Label28"), [this] { return games().cell(1, 1).empty(); }},
         {"Label29_Click", open, clicks("Label29"), [this] { return games().cell(2, 1) == "Loud"; }},
         {"Label11_Click", open, clicks("Label11"),
          [this] { return sees("SaveFrame") && form().save_pane.kind == SavePane::SaveKind::kGameSet; }},
         {"Label12_Click", open, clicks("Label12"), [this] { return sees("Frame2"); }},
         {"Label10_Click(1)", open, clicks("Label10(1)"), [this] { return !sees("GameFrame"); }},
         {"GameFrame_MouseDown, GameFrame_MouseUp", open,
          [this] {
            start_ = form().game.GameFrame.place.left;
            drags("GameFrame")();
          },
          [this] { return start_ != 0 && form().game.GameFrame.place.left == start_ + 450; }}});
}

TEST_F(Handlers, OfTheAircraftPane) {
  const Step open = [this] { open_all_slots(); };
  const auto cell = [this](int row, int column) { return table().cell(row, column); };
  check({{"Label8_Click", open, clicks("Label8"), [this] { return folder.has("P38H.flt"); }},
         {"G1_MouseDown", open, [this] { click_cell(3, 0); }, [this] { return table().current_row == 3; }},
         {"Label3_Click",
          [this] {
            open_all_slots();
            click_cell(1, 0);
          },
          clicks("Label3"), [cell] { return cell(1, PlaneTable::kPlaneName).empty(); }},
         {"Label30_Click", [this] { open_aircraft_pane(); }, clicks("Label30"),
          [this] { return text("Label30") == "Show Selections"; }},
         {"Option1_Click", open, clicks("Option1(2)"),
          [this] { return form().plane.is_set(PlaneOption::kEditMode) && sees("List3") && !sees("List2"); }},
         {"List2_Click",
          [this] {
            open_all_slots();
            click("Option1(3)");
            click_cell(2, 0);
          },
          clicks_entry("List2", 4), [cell] { return cell(2, PlaneTable::kScriptFolder).starts_with("FM "); }},
         {"List3_Click",
          [this] {
            open_all_slots();
            click("Option1(2)");
            click_cell(2, 0);
          },
          clicks_entry("List3", 7), [cell] { return cell(2, PlaneTable::kRecordNumber) == "7"; }},
         {"Label14_Click", open, clicks("Label14"),
          [this] { return sees("SaveFrame") && form().save_pane.kind == SavePane::SaveKind::kPlaneSet; }},
         {"Label13_Click", open, clicks("Label13"), [this] { return sees("Frame2"); }},
         {"Label10_Click(0)", open, clicks("Label10(0)"), [this] { return !sees("Frame1"); }},
         {"Frame1_MouseDown, Frame1_MouseUp", open,
          [this] {
            start_ = form().plane.Frame1.place.left;
            drags("Frame1")();
          },
          [this] { return start_ != 0 && form().plane.Frame1.place.left == start_ + 450; }}});
}

TEST_F(Handlers, OfTheSelectionPane) {
  const Step open = [this] { open_skin_group(); };
  const Step view = [this] { view_skin(); };
  const Effect hidden = [this] { return !sees("Frame3"); };
  const Effect worn = [this] {
    return table().cell(17, PlaneTable::kSkinFolder) == form().selection.current_selection &&
           !form().selection.current_selection.empty();
  };
  check(
      {{"Label1_Click", [this] { click("Label9(0)"); }, clicks("Label1(1)"),
        [this] { return sees("Frame3") && form().selection.current_group == "Axis"; }},
       {"SelLab_Click", open, clicks("SelLab(0)"), [this] { return sees("FolderLabel") && sees("Image1"); }},
       {"SelLab_DblClick, DoSel", view, [this] { double_click("SelLab(0)"); }, worn},
       {"Image1_Click, DoSel", view, clicks("Image1"), worn},
       {"Label27_Click(0)", view, clicks("Label27(0)"), [this] { return !sees("Image1"); }},
       {"Label27_Click(1)", view, clicks("Label27(1)"), [this] { return sees("Text1"); }},
       {"Frame3_Click", open,
        [this] {
          click_what_lies_at(widget("Advice")->parentWidget(), {4, 4});
        },
        hidden},
       {"Image3_Click", open,
        [this] {
          click_what_lies_at(widget("Frame3"), {5, 5});
        },
        hidden},
       {"Label10_Click(2)", open, clicks("Label10(2)"), hidden},
       {"Label41_Click", [this] { click("Label9(0)"); }, clicks("Label41"),
        [this] { return sees("Frame1"); }},
       {"Label2_Click", open, clicks("Label2"), [this] { return sees("Frame1") && !sees("Label2"); }}});
}

TEST_F(Handlers, OfThePossibleSkins) {
  const Step open = [this] { open_possible_skins(); };
  check({{"FillPossibleSkins",
          [this] {
            open_all_slots();
            click("Option1(2)");
          },
          [this] { click_cell(2, PlaneTable::kRegion); },
          [this] { return sees("Frame4") && text("Label32") == "Wings P38J"; }},
         {"List4_Click",
          [this] {
            open_possible_skins();
            blank(form().possible_skins.Label32);
          },
          clicks_entry("List4", 0), [this] { return text("Label32") == "Wings P38J"; }},
         {"Image4_Click", open, clicks("Image4"),
          [this] { return table().cell(2, PlaneTable::kSkinFolder) == "Wings P38J"; }},
         {"Label31_Click", open, clicks("Label31"),
          [this] { return form().possible_skins.List4.items.empty(); }},
         {"Label33_Click", open, clicks("Label33"), [this] { return !sees("Frame4") && sees("Frame1"); }},
         {"Frame4_MouseDown, Frame4_MouseUp", open,
          [this] {
            start_ = form().possible_skins.Frame4.place.left;
            drags("Frame4")();
          },
          [this] { return start_ != 0 && form().possible_skins.Frame4.place.left == start_ + 450; }}});
}

TEST_F(Handlers, OfTheSetUpPanes) {
  const Step save = [this] { open_save_pane(); };
  const Step load = [this] { click("Label9(3)"); };
  const Effect saving_ends = [this] { return !sees("SaveFrame"); };
  const Effect loading_ends = [this] { return !sees("Frame2"); };
  check({{"File5_Click", save, clicks_entry("File5", 0), [this] { return text("Text2") == "Quiet"; }},
         {"Label4_Click",
          [this] {
            open_save_pane();
            type("Text2", "Two sets");
          },
          clicks("Label4"), [this] { return folder.has("~Vorlund/GameSetFiles/Two sets"); }},
         {"Label39_Click", save, clicks("Label39"), saving_ends},
         {"SaveFrame_Click", save, clicks_rim("SaveFrame"), saving_ends},
         {"File2_Click", load, clicks_entry("File2", 0), [this] { return text("Label20") == "Early"; }},
         {"File3_Click", load, clicks_entry("File3", 0), [this] { return text("Label21") == "Quiet"; }},
         {"Check1_Click", load, clicks("Check1"), [this] { return form().load_pane.Check1.checked; }},
         {"Label19_Click",
          [this] {
            click("Label9(3)");
            click_entry("File3", 0);
          },
          clicks("Label19"), [this] { return games().row_count() == 2 && folder.has("sky.pal"); }},
         {"Label40_Click", load, clicks("Label40"), loading_ends},
         {"Frame2_Click", load, clicks_rim("Frame2"), loading_ends}});
}

TEST_F(Handlers, OfTheMenuEditor) {
  const Step open = [this] { open_menu_editor(); };
  check({{"bmnutb_Change", open, [this] { type("bmnutb(3)", "fahrer!"); },
          [this] { return text("mlen(3)") == "12"; }},
         {"CountryBut_Click", open, clicks("CountryBut(2)"),
          [this] { return form().menu_editor.CountryBut[2].checked; }},
         {"PMenFrame_Click", open, clicks_rim("PMenFrame"), [this] { return !sees("PMenFrame"); }}});
}

}  // namespace
}  // namespace vorlund::test
