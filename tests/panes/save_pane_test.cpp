// Saving set-ups under names.
#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "panes/setups_fixture.h"

namespace vorlund {
namespace {

using SavingSetups = test::SetupsFixture;

TEST_F(SavingSetups, WritesAPlaneSetUnderExactlyTheTypedName) {
  plane.set_flight_model_group("Standard");
  form.Label14_Click();
  save.Text2.text = "Spring 1944";
  form.Label4_Click();
  EXPECT_EQ(folder.names("~Vorlund/PlaneSetFiles"), (std::vector<std::string>{"Spring 1944"}));
  const std::string bytes = folder.read("~Vorlund/PlaneSetFiles/Spring 1944");
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 32);
  EXPECT_TRUE(bytes.starts_with("Standard\r\nSlot\tRegion\t"));
  EXPECT_FALSE(save.SaveFrame.visible);
}

TEST_F(SavingSetups, WritesOneLineForAGameTableOfASingleRow) {
  form.Label11_Click();
  save.Text2.text = "Nothing";
  form.Label4_Click();
  EXPECT_EQ(folder.read("~Vorlund/GameSetFiles/Nothing"), "Folder group\tFolder name\r\n");
}

TEST_F(SavingSetups, OpensEmptyAndInFrontWithTheExistingFilesOfTheKind) {
  folder.write("~Vorlund/GameSetFiles/b", "");
  folder.write("~Vorlund/GameSetFiles/A", "");
  folder.write("~Vorlund/PlaneSetFiles/c", "");
  save.Text2.text = "left over";
  form.Label11_Click();
  EXPECT_EQ(save.File5.names, (std::vector<std::string>{"A", "b"}));
  EXPECT_EQ(save.Text2.text, "");
  EXPECT_TRUE(save.SaveFrame.visible);
  EXPECT_GT(save.SaveFrame.depth, 0);
  form.Label14_Click();
  EXPECT_EQ(save.File5.names, (std::vector<std::string>{"c"}));
  EXPECT_EQ(save.kind, SavePane::SaveKind::kPlaneSet);
}

TEST_F(SavingSetups, OverwritesAPickedFileWithoutAsking) {
  folder.write("~Vorlund/GameSetFiles/Old", std::string(1000, 'x'));
  form.Label11_Click();
  form.File5_Click(0);
  EXPECT_EQ(save.Text2.text, "Old");
  form.Label4_Click();
  EXPECT_EQ(folder.read("~Vorlund/GameSetFiles/Old"), "Folder group\tFolder name\r\n");
}

TEST_F(SavingSetups, AClickBesideTheFilesPicksNone) {
  folder.write("~Vorlund/GameSetFiles/Old", "old");
  form.Label11_Click();
  for (const int index : {-1, 1}) {
    form.File5_Click(index);
    EXPECT_EQ(save.Text2.text, "");
    EXPECT_EQ(save.File5.selected, -1);
  }
}

TEST_F(SavingSetups, ANameThatIsTooLongForAFileIsRefused) {
  form.Label11_Click();
  save.Text2.text = std::string(256, 'n');
  form.Label4_Click();
  EXPECT_TRUE(save.SaveFrame.visible);
  EXPECT_TRUE(save.refusal.visible);
  EXPECT_TRUE(folder.names("~Vorlund/GameSetFiles").empty());
  save.Text2.text = std::string(255, 'n');
  form.Label4_Click();
  EXPECT_FALSE(save.SaveFrame.visible);
  EXPECT_EQ(folder.names("~Vorlund/GameSetFiles"), (std::vector<std::string>{std::string(255, 'n')}));
}

TEST_F(SavingSetups, TheRefusalGoesWhenAnExistingNameIsPicked) {
  folder.write("~Vorlund/GameSetFiles/Old", "old");
  form.Label11_Click();
  save.Text2.text = "a:b";
  form.Label4_Click();
  EXPECT_TRUE(save.refusal.visible);
  form.File5_Click(0);
  EXPECT_FALSE(save.refusal.visible);
}

TEST_F(SavingSetups, SavesIntoTheGameDirectoryOfTheMoment) {
  const test::TemporaryFolder other;
  other.make_folder("~Vorlund/GameSetFiles");
  form.Label11_Click();
  save.Text2.text = "new";
  form.desk.directory.Label16.caption = other.path();
  form.Label4_Click();
  EXPECT_TRUE(other.has("~Vorlund/GameSetFiles/new"));
  EXPECT_FALSE(folder.has("~Vorlund/GameSetFiles/new"));
}

TEST_F(SavingSetups, AnEmptyNameClosesThePaneAndWritesNothing) {
  form.Label11_Click();
  form.Label4_Click();
  EXPECT_FALSE(save.SaveFrame.visible);
  EXPECT_TRUE(folder.names("~Vorlund/GameSetFiles").empty());
}

TEST_F(SavingSetups, CancelAndTheBackgroundCloseThePaneAndWriteNothing) {
  for (const auto close : {&Form1::Label39_Click, &Form1::SaveFrame_Click}) {
    form.Label11_Click();
    save.Text2.text = "Name";
    std::invoke(close, form);
    EXPECT_FALSE(save.SaveFrame.visible);
  }
  EXPECT_TRUE(folder.names("~Vorlund/GameSetFiles").empty());
}

TEST_F(SavingSetups, RefusesNamesThatCanBeNoFileNameOnEitherPlatformAndStaysOpen) {
  const auto before = folder.tree();
  for (const char* name :
       {"..",  ".",       "a/b",  "a\\b",  "..\\x",     "c:x",         "x:stream",
        "CON", "nul.txt", "COM1", "name.", "name ",     " ",           "a*b",
        "a?b", "a<b",     "a|b",  "a\"b",  "tab\there", "line\nbreak", "~vorlund-p1-0.bak"}) {
    form.Label11_Click();
    save.Text2.text = name;
    form.Label4_Click();
    EXPECT_TRUE(save.SaveFrame.visible) << name;
    EXPECT_TRUE(save.refusal.visible) << name;
    EXPECT_FALSE(save.refusal.caption.empty());
    EXPECT_EQ(save.Text2.text, name);
  }
  EXPECT_EQ(folder.tree(), before);
  save.Text2.text = "Fine";
  form.Label4_Click();
  EXPECT_FALSE(save.refusal.visible);
  EXPECT_TRUE(folder.has("~Vorlund/GameSetFiles/Fine"));
}

TEST_F(SavingSetups, UsesEverythingElseExactlyAsTyped) {
  for (const char* name :
       {" leading blank", ".dotted", "a.b.c", "\xC3\xA9t\xC3\xA9 44", "100 % mine", "~x", "-rf"}) {
    form.Label11_Click();
    save.Text2.text = name;
    form.Label4_Click();
    EXPECT_TRUE(folder.has(std::string("~Vorlund/GameSetFiles/") + name)) << name;
  }
}

}  // namespace
}  // namespace vorlund
