// The menu editor pane: what it reads, shows and writes.
#include "panes/menu_editor.h"

#include <gtest/gtest.h>

#include "support/form_in_folder.h"
#include "support/sample_menu.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

using namespace std::string_literals;

constexpr Country kBritish = Country::kBritish;
constexpr Country kAmerican = Country::kAmerican;
constexpr Country kGerman = Country::kGerman;

const std::vector<std::string> kNineNames = {"Typhoon",   "Spitfire IX", "Spitfire II",
                                             "Hurricane", "Tempest",     "Spitfire XIV",
                                             "Mosquito",  "Lancaster",   "Anson"};
const std::vector<std::string> kElevenNames = {"Bf 109K", "Bf 109G", "Fw 190A", "Fw 190D",
                                               "Bf 109E", "Me 262",  "Bf 110G", "Bf 110C",
                                               "Me 410",  "Ju 88",   "He 111"};

class MenuEditorPane : public ::testing::Test {
 protected:
  void read(Country country) {
    pmenread(form.desk.game(), country, editor.menu);
    editor.refresh(country);
  }

  void write(Country country) { pmenwrite(form.desk.game(), country, editor.menu); }

  std::string shown(std::size_t entry) const { return editor.bmnutb[entry].text; }
  std::string length(std::size_t entry) const { return editor.mlen[entry].caption; }

  test::TemporaryFolder folder;
  std::unique_ptr<FileSystem> files = make_platform_file_system();
  test::FormInFolder work{*files, folder.path()};
  Form1& form = work.form;
  MenuEditor& editor = form.menu_editor;
};

TEST_F(MenuEditorPane, ShowsNamesLengthsAndTheBytesThatAreCarriedThrough) {
  folder.write("picplnb.mnu", test::sample_menu(kNineNames));
  read(kBritish);
  EXPECT_EQ(editor.hedlab.caption,
            " 200 201 202 203 204 205 206 207 208 209 210 211 212 213 214 215 216 217 218 219 220 221 222 223"
            " 224 225 226 227 228 229 230 231 232 233 234");
  EXPECT_EQ(shown(0), "Typhoon");
  EXPECT_EQ(length(0), "8");
  EXPECT_EQ(editor.position[0].caption, " 0 1 2 3 4 5 6 7 8 9 10 11 12 13 14");
  EXPECT_EQ(shown(8), "Anson");
  EXPECT_EQ(length(8), "6");
  EXPECT_EQ(editor.position[8].caption, " 80 81 82 83 84 85 86 87 88 89 90 91 92 93 94");
}

TEST_F(MenuEditorPane, WritesAnUnchangedFileBackUpToItsLastEntry) {
  struct Case {
    Country country;
    const char* file;
    std::vector<std::string> names;
  };
  const Case cases[] = {{kBritish, "picplnb.mnu", kNineNames},
                        {kAmerican, "picplna.mnu", kNineNames},
                        {kGerman, "picplng.mnu", kElevenNames}};
  for (const Case& test : cases) {
    SCOPED_TRACE(test.file);
    const std::string bytes = test::sample_menu(test.names);
    folder.write(test.file, bytes + "what follows is dropped");
    read(test.country);
    write(test.country);
    EXPECT_EQ(folder.read(test.file), bytes);
  }
}

TEST_F(MenuEditorPane, KeepsAllByteValuesOfANameAndCountsThemAsOneCharacterEach) {
  std::vector<std::string> names = kNineNames;
  names[0] = test::counting_bytes(1, 127);
  names[1] = test::counting_bytes(128, 128);
  const std::string bytes = test::sample_menu(names);
  folder.write("picplnb.mnu", bytes);
  read(kBritish);
  EXPECT_EQ(length(0), "128");
  EXPECT_EQ(length(1), "129");
  write(kBritish);
  EXPECT_EQ(folder.read("picplnb.mnu"), bytes);
}

TEST_F(MenuEditorPane, KeepsTheLengthOfAnEntryReadWithLengthZero) {
  std::string bytes = test::sample_menu_header() + "\0\0\0\0"s + test::sample_menu_trailer(0);
  std::string expected = test::sample_menu_header() + "\0\0\0\0\0"s + test::sample_menu_trailer(0);
  for (int entry = 1; entry < 9; ++entry) {
    bytes += test::sample_menu_entry("Name", entry);
    expected += test::sample_menu_entry("Name", entry);
  }
  folder.write("picplnb.mnu", bytes);
  read(kBritish);
  EXPECT_EQ(shown(0), "");
  EXPECT_EQ(length(0), "0");
  write(kBritish);
  EXPECT_EQ(folder.read("picplnb.mnu"), expected);
}

TEST_F(MenuEditorPane, ClosesANameOverAnEmbeddedZeroByte) {
  std::string bytes = test::sample_menu_header() + "\6\0\0\0AB\0CD\0"s + test::sample_menu_trailer(0);
  std::string expected = test::sample_menu_header() + "\5\0\0\0ABCD\0"s + test::sample_menu_trailer(0);
  for (int entry = 1; entry < 9; ++entry) {
    bytes += test::sample_menu_entry("Name", entry);
    expected += test::sample_menu_entry("Name", entry);
  }
  folder.write("picplnb.mnu", bytes);
  read(kBritish);
  EXPECT_EQ(shown(0), "ABCD");
  EXPECT_EQ(length(0), "5");
  write(kBritish);
  EXPECT_EQ(folder.read("picplnb.mnu"), expected);
}

TEST_F(MenuEditorPane, CutsANameWithoutRoomForItsZeroByte) {
  folder.write("picplnb.mnu",
               test::sample_menu_header() + "\377\0\0\0"s + std::string(255, 'x') + std::string(15, '\7'));
  read(kBritish);
  EXPECT_EQ(shown(0), std::string(254, 'x'));
  EXPECT_EQ(length(0), "255");
  write(kBritish);
  const std::string written = folder.read("picplnb.mnu");
  EXPECT_EQ(written.substr(35, 4), "\377\0\0\0"s);
  EXPECT_EQ(written.substr(39, 255), std::string(254, 'x') + "\0"s);
  EXPECT_EQ(written.substr(294, 15), std::string(15, '\7'));
}

TEST_F(MenuEditorPane, ClearsTheGermanEntriesWhenTheBritishFileIsReadNext) {
  folder.write("picplng.mnu", test::sample_menu(kElevenNames));
  folder.write("picplnb.mnu", test::sample_menu(kNineNames));
  read(kGerman);
  EXPECT_EQ(shown(9), "Ju 88");
  EXPECT_EQ(shown(10), "He 111");
  read(kBritish);
  EXPECT_EQ(shown(9), "");
  EXPECT_EQ(shown(10), "");
  EXPECT_EQ(length(10), "1");
  EXPECT_EQ(editor.position[10].caption, "");
  write(kBritish);
  EXPECT_EQ(folder.read("picplnb.mnu"), test::sample_menu(kNineNames));
}

TEST_F(MenuEditorPane, MissingFileLeavesThePaneClearedAndIsNeverCreated) {
  folder.write("picplnb.mnu", test::sample_menu(kNineNames));
  read(kBritish);
  read(kAmerican);
  EXPECT_EQ(shown(0), "");
  EXPECT_EQ(length(0), "1");
  EXPECT_EQ(editor.hedlab.caption, "");
  EXPECT_EQ(editor.position[0].caption, "");
  editor.set_name(0, "P-51");
  write(kAmerican);
  EXPECT_FALSE(folder.has("picplna.mnu"));
}

TEST_F(MenuEditorPane, WritesWhatItHoldsIntoTheFileOfTheButtonSelectedLast) {
  folder.write("picplnb.mnu", test::sample_menu(kNineNames));
  folder.write("picplna.mnu", "anything");
  read(kBritish);
  write(kAmerican);
  EXPECT_EQ(folder.read("picplna.mnu"), test::sample_menu(kNineNames));
}

TEST_F(MenuEditorPane, ShortFileReadsAsZeros) {
  folder.write("picplng.mnu", "");
  read(kGerman);
  EXPECT_EQ(length(0), "0");
  EXPECT_EQ(shown(10), "");
  EXPECT_EQ(editor.position[10].caption, " 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0");
  write(kGerman);
  EXPECT_EQ(folder.read("picplng.mnu"), std::string(35 + 11 * 20, '\0'));
}

TEST_F(MenuEditorPane, NameOfTwelveCharactersShowsThirteenAndAnEmptyOneShowsOne) {
  editor.set_name(3, "Spitfire IXc");
  EXPECT_EQ(length(3), "13");
  editor.set_name(3, "");
  EXPECT_EQ(length(3), "1");
}

TEST_F(MenuEditorPane, SettingTheSameNameLeavesTheLengthAlone) {
  editor.set_name(3, "Spitfire");
  editor.menu.entries[3].length = 77;
  editor.set_name(3, "Spitfire");
  EXPECT_EQ(length(3), "77");
  editor.set_name(3, "Spitfires");
  EXPECT_EQ(length(3), "10");
}

TEST_F(MenuEditorPane, NamesAreCutTo254CharactersWhateverTheirBytesInMemory) {
  editor.set_name(0, std::string(300, 'n'));
  EXPECT_EQ(shown(0), std::string(254, 'n'));
  EXPECT_EQ(length(0), "255");
  std::string accented;
  for (int count = 0; count < 300; ++count) accented += "\u00E9";
  editor.set_name(1, accented);
  EXPECT_EQ(shown(1), accented.substr(0, 508));
  EXPECT_EQ(length(1), "255");
}

TEST_F(MenuEditorPane, ANameEndsAtAZeroCharacter) {
  editor.set_name(0, std::string_view("P-51\0D", 6));
  EXPECT_EQ(shown(0), "P-51");
  EXPECT_EQ(length(0), "5");
}

TEST_F(MenuEditorPane, IsShownInFrontAndHiddenByAClick) {
  folder.write("picplnb.mnu", test::sample_menu(kNineNames));
  Frame other;
  form.desk.bring_to_front(other);
  EXPECT_FALSE(editor.PMenFrame.visible);
  editor.show();
  EXPECT_TRUE(editor.PMenFrame.visible);
  EXPECT_GT(editor.PMenFrame.depth, other.depth);
  EXPECT_EQ(shown(0), "Typhoon");
  editor.set_name(0, "Kept");
  form.PMenFrame_Click();
  EXPECT_FALSE(editor.PMenFrame.visible);
  editor.show();
  EXPECT_EQ(shown(0), "Kept");
  EXPECT_EQ(folder.read("picplnb.mnu"), test::sample_menu(kNineNames));
}

TEST_F(MenuEditorPane, ExactlyOneCountryButtonIsSet) {
  EXPECT_TRUE(editor.CountryBut[0].checked);
  form.CountryBut_Click(2);
  EXPECT_FALSE(editor.CountryBut[0].checked);
  EXPECT_FALSE(editor.CountryBut[1].checked);
  EXPECT_TRUE(editor.CountryBut[2].checked);
}

}  // namespace
}  // namespace vorlund
