// The save and load panes under mouse and keyboard.
#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <algorithm>

#include "window/aircraft_window.h"
#include "window/made_aircraft_game.h"

namespace vorlund::test {
namespace {

/// A plane set whose first slot alone is filled.
std::string plane_set(const std::string& name) {
  std::string text =
      "Standard\r\nSlot\tRegion\tSkinFolder\tPlnDat\tScriptFolder\tPName$\tSide\tFlyable\tRole\tFuel %\r\n";
  text += "P38H\tAllied\tWings P38H\t0\tFM P38H\t" + name + "\tAmerican\tYes\tFighter\t100\r\n";
  for (int record = 1; record < 30; ++record) text += slot_code(record) + "\t\t\t\t\t\t\t\t\t\r\n";
  return text;
}

std::string game_set() {
  return "Folder group\tFolder name\r\nSounds\tLoud\r\n";
}

class SetUpPanes : public AircraftWindow {
 protected:
  SetUpPanes() {
    folder.write("~Vorlund/PlaneSetFiles/Early war", plane_set("Lightning one"));
    folder.write("~Vorlund/PlaneSetFiles/Late war", plane_set("Lightning two"));
    folder.write("~Vorlund/GameSetFiles/Noisy", game_set());
  }

  void open_save_pane() {
    click("WhatsLoaded");
    click("Label14");
  }

  std::vector<std::string> saved() { return folder.names("~Vorlund/PlaneSetFiles"); }
};

class SavePaneWindow : public SetUpPanes {
 protected:
  SavePaneWindow() {
    folder.write("~Vorlund/CurrentPlaneSet.txt", plane_set("Lightning"));
    folder.write("~Vorlund/CurrentGameSet.txt", game_set());
    restart();
    click("WhatsLoaded");
    click("Label10(1)");
    click("Label14");
  }
};

TEST_F(SavePaneWindow, ATypedNameAndEnterSaveTheAircraftTableUnderExactlyThatName) {
  EXPECT_TRUE(sees("SaveFrame"));
  EXPECT_TRUE(widget("Text2")->hasFocus()) << "a name can be typed at once";
  type("Text2", "Spring 1944");
  press_key("Text2", Qt::Key_Return);
  EXPECT_FALSE(sees("SaveFrame"));
  EXPECT_EQ(saved(), (std::vector<std::string>{"Early war", "Late war", "Spring 1944"}));
  EXPECT_EQ(folder.read("~Vorlund/PlaneSetFiles/Spring 1944"), plane_set("Lightning"));
}

TEST_F(SavePaneWindow, TheGamePaneSavesTheGameTable) {
  click("Label39");
  click("Label10(0)");
  click("WhatsLoaded");
  click("Label11");
  type("Text2", "Loud one");
  click("Label4");
  EXPECT_EQ(folder.read("~Vorlund/GameSetFiles/Loud one"), game_set());
}

TEST_F(SavePaneWindow, AClickOnAnExistingFileTakesItsNameAndReplacesIt) {
  click_entry("File5", 1);
  EXPECT_EQ(text("Text2"), "Late war");
  click("Label4");
  EXPECT_EQ(folder.read("~Vorlund/PlaneSetFiles/Late war"), plane_set("Lightning"));
}

TEST_F(SavePaneWindow, ANameThatCanBeNoFileIsRefusedInThePaneWithAVisibleWord) {
  for (const char* name : {"a\\b", "a/b", "a:b", "..", "nul", "ends in a dot.", "ends in a blank "}) {
    static_cast<QLineEdit*>(widget("Text2"))->clear();
    type("Text2", name);
    click("Label4");
    EXPECT_TRUE(sees("SaveFrame")) << name;
    EXPECT_TRUE(sees("SaveRefusal")) << name;
    EXPECT_NE(text("SaveRefusal"), "") << name;
    EXPECT_EQ(saved().size(), 2U) << name;
  }
  type("Text2", "x");
  EXPECT_FALSE(sees("SaveRefusal")) << "typing on takes the word away";
}

TEST_F(SavePaneWindow, CancelAnEmptyNameAndTheFreeAreaWriteNothing) {
  type("Text2", "never");
  click("Label39");
  EXPECT_FALSE(sees("SaveFrame"));
  click("Label14");
  EXPECT_EQ(text("Text2"), "");
  click("Label4");
  EXPECT_FALSE(sees("SaveFrame"));
  click("Label14");
  type("Text2", "never");
  click_at(widget("SaveFrame"), QPoint(200, 10));
  EXPECT_FALSE(sees("SaveFrame"));
  EXPECT_EQ(saved().size(), 2U);
}

class LoadPaneWindow : public SetUpPanes {
 protected:
  LoadPaneWindow() { click("Label9(3)"); }
};

TEST_F(LoadPaneWindow, ViewLoadsIntoTheTablesAndInstallsNothing) {
  EXPECT_EQ(text("Label22(0)"), "Gamesets");
  EXPECT_EQ(text("Label22(1)"), "Planesets");
  EXPECT_FALSE(static_cast<QAbstractButton*>(widget("Check1"))->isChecked());
  click_entry("File2", 1);
  click_entry("File3", 0);
  EXPECT_EQ(text("Label20"), "Late war");
  EXPECT_EQ(text("Label21"), "Noisy");
  click("Check1");
  EXPECT_TRUE(static_cast<QAbstractButton*>(widget("Check1"))->isChecked());
  click("Label19");
  EXPECT_FALSE(sees("Frame2"));
  EXPECT_TRUE(sees("Frame1"));
  EXPECT_TRUE(sees("GameFrame"));
  EXPECT_EQ(table().cell(1, PlaneTable::kPlaneName), "Lightning two");
  EXPECT_EQ(text("Label25(0)"), "Standard");
  EXPECT_FALSE(folder.has("boom.snd"));
  EXPECT_FALSE(folder.has("P38H.flt"));
}

TEST_F(LoadPaneWindow, WithoutViewBothAreInstalledAtOnce) {
  click_entry("File2", 0);
  click_entry("File3", 0);
  click("Label19");
  EXPECT_FALSE(sees("Frame2"));
  EXPECT_FALSE(sees("Frame1"));
  EXPECT_EQ(folder.read("boom.snd"), "boom");
  EXPECT_EQ(folder.read("P38H.flt"), "flight P38H");
  EXPECT_EQ(folder.read("~Vorlund/CurrentPlaneSet.txt"), plane_set("Lightning one"));
  EXPECT_EQ(folder.read("~Vorlund/CurrentGameSet.txt"), game_set());
}

TEST_F(LoadPaneWindow, TheSecondCheckBoxHasNoEffectAndHidesNothing) {
  click_entry("File2", 0);
  click("Check2");
  EXPECT_TRUE(sees("Frame2"));
  click("Label19");
  EXPECT_EQ(folder.read("P38H.flt"), "flight P38H") << "installed, not viewed";
}

TEST_F(LoadPaneWindow, CancelAndTheFreeAreaLoadNothingAndTheNamesStayChosen) {
  click_entry("File2", 0);
  click("Label40");
  EXPECT_FALSE(sees("Frame2"));
  click("Label9(3)");
  EXPECT_EQ(text("Label20"), "Early war");
  click_at(widget("Frame2"), QPoint(300, 10));
  EXPECT_FALSE(sees("Frame2"));
  EXPECT_EQ(table().cell(1, PlaneTable::kPlaneName), "");
}

TEST_F(LoadPaneWindow, KeysChooseInTheLists) {
  widget("File2")->setFocus();
  press_key("File2", Qt::Key_Down);
  EXPECT_EQ(text("Label20"), "Early war");
  press_key("File2", Qt::Key_Down);
  EXPECT_EQ(text("Label20"), "Late war");
  click_entry("File2", 0);
  EXPECT_EQ(text("Label20"), "Early war");
}

}  // namespace
}  // namespace vorlund::test
