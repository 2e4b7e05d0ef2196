// Finding by typing, the sheet of pictures, and groups of thousands of folders in the real window.
#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QMouseEvent>
#include <QtTest/QTest>

#include "window/aircraft_window.h"
#include "window/contact_sheet.h"
#include "window/theme.h"

namespace vorlund::test {
namespace {

constexpr char kGroup[] = "Chasse fran\u00E7aise";
constexpr int kNever = 200;      // milliseconds after which nothing more is expected
constexpr int kAtLast = 20'000;  // milliseconds at most until something happens

std::string picture(const QSize& size) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(QColor(200, 30, 40));
  QByteArray bytes;
  QBuffer buffer(&bytes);
  EXPECT_TRUE(image.save(&buffer, "png"));
  return bytes.toStdString();
}

class Browsing : public AircraftWindow {
 protected:
  Browsing() {
    for (const char* name : {"Hurricane", "Spitfire IX Zwillinge", "Spitfire V", "\u00C9toile filante"}) {
      store(name, "mypic", picture({40, 30}));
    }
    folder.make_folder("~Vorlund/GameStore/Zone libre/Foo bar");
    restart();
    click("Label9(1)");
  }

  void store(const std::string& name, const std::string& file, const std::string& bytes) {
    folder.write("~Vorlund/GameStore/" + std::string(kGroup) + "/" + name + "/" + file, bytes);
  }

  void open_group() { click(label_of("Label1", kGroup)); }

  ListView* list(const char* name) { return dynamic_cast<ListView*>(widget(name)); }
  ContactSheet* sheet() { return dynamic_cast<ContactSheet*>(widget("Sheet")); }

  /// What a list shows, by name.
  QStringList shown(const char* name) {
    QStringList names;
    for (int row = 0; row < list(name)->entries().rowCount(); ++row) {
      names.append(list(name)->entries().index(row).data().toString());
    }
    return names;
  }

  const Tile* tile(int index) { return sheet()->tile(sheet()->entries().row_of(index)); }

  /// The second press of a double click, where the pointer is.
  void press_again(const QPoint& spot) {
    QWidget* hit = window().childAt(spot);
    const QPointF inside(hit->mapFrom(&window(), spot));
    const QPointF there(window().mapToGlobal(spot));
    QMouseEvent second(QEvent::MouseButtonDblClick, inside, there, Qt::LeftButton, Qt::LeftButton,
                       Qt::NoModifier);
    QApplication::sendEvent(hit, &second);
    QMouseEvent release(QEvent::MouseButtonRelease, inside, there, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QApplication::sendEvent(hit, &release);
  }
};

TEST_F(Browsing, TypingInTheGroupsFiltersThemAndEnterOpensTheFirst) {
  EXPECT_TRUE(list("Label1")->hasFocus()) << "the menu's groups can be typed into at once";
  type("Label1", "FRANC");
  EXPECT_EQ(shown("Label1"), QStringList{QString::fromUtf8(kGroup)});
  EXPECT_EQ(text("Label1Find"), "Find: FRANC");
  EXPECT_TRUE(sees("Label1Find"));
  EXPECT_EQ(form().selection.Label1.size(), 3U);
  press_key("Label1", Qt::Key_Return);
  EXPECT_EQ(form().selection.current_group, kGroup);
}

TEST_F(Browsing, AnyPartOfTheNameIsFoundInListAndSheetAndTheLabelsKeepTheirIndices) {
  open_group();
  type("SelLab", "spit zwilling");
  const QStringList found{"Spitfire IX Zwillinge"};
  EXPECT_EQ(shown("SelLab"), found);
  EXPECT_EQ(shown("Sheet"), found);
  EXPECT_EQ(form().selection.SelLab.size(), 4U);
  click("SelLab(1)");
  EXPECT_EQ(form().selection.current_selection, "Spitfire IX Zwillinge");
  press_key("SelLab", Qt::Key_Backspace);
  EXPECT_EQ(text("SelLabFind"), "Find: spit zwillin");
}

TEST_F(Browsing, WhatIsNowhereInAnyNameLeavesAWordInPlaceOfTheEntries) {
  open_group();
  type("SelLab", "xyz");
  EXPECT_EQ(shown("SelLab"), QStringList());
  const QImage empty = list("SelLab")->grab().toImage();
  press_key("SelLab", Qt::Key_Return);
  EXPECT_FALSE(sees("Image1")) << "there is nothing to act on";
  press_key("SelLab", Qt::Key_Escape);
  EXPECT_EQ(shown("SelLab").size(), 4);
  EXPECT_NE(list("SelLab")->grab().toImage(), empty);
}

TEST_F(Browsing, EscapeEmptiesWhatWasTypedThenLeavesTheSelectionThenThePane) {
  open_group();
  click("SelLab(2)");
  click("Label27(1)");
  type("SelLab", "spit");
  press_key("SelLab", Qt::Key_Escape);
  EXPECT_FALSE(sees("SelLabFind"));
  EXPECT_TRUE(sees("Image1"));
  press_key("SelLab", Qt::Key_Escape);
  EXPECT_FALSE(sees("Image1") || sees("Text1") || sees("FolderLabel") || sees("Label27(0)"));
  EXPECT_TRUE(sees("Sheet"));
  press_key("SelLab", Qt::Key_Escape);
  EXPECT_FALSE(sees("Frame3"));
}

TEST_F(Browsing, AGroupThatIsOpenedStartsUnfiltered) {
  open_group();
  type("SelLab", "hurri");
  click("Label10(2)");
  click(label_of("Label1", "Zone libre"));
  EXPECT_EQ(shown("SelLab"), QStringList{"Foo bar"});
  click("Label10(2)");
  open_group();
  EXPECT_EQ(shown("SelLab").size(), 4);
}

TEST_F(Browsing, SpaceActsButBehindTypedTextItIsABlank) {
  open_group();
  press_key("SelLab", Qt::Key_End);
  press_key("SelLab", Qt::Key_Space);
  EXPECT_EQ(form().selection.current_selection, "\u00C9toile filante");
  type("SelLab", "v spit");
  EXPECT_EQ(form().selection.found_folders.typed, "v spit");
  EXPECT_EQ(shown("SelLab"), QStringList{"Spitfire V"});
}

TEST_F(Browsing, LettersOfAnInputMethodAreTypedToo) {
  open_group();
  QInputMethodEvent typed;
  typed.setCommitString(QString::fromUtf8("\u00E9toi"));
  QApplication::sendEvent(widget("SelLab"), &typed);
  EXPECT_EQ(shown("SelLab"), QStringList{QString::fromUtf8("\u00C9toile filante")});
  EXPECT_TRUE(widget("SelLab")->testAttribute(Qt::WA_InputMethodEnabled));
}

TEST_F(Browsing, ArrowsMoveThroughTheSheetAndShowTheNextSelectionBesideAPicture) {
  open_group();
  press_key("Sheet", Qt::Key_Home);
  press_key("Sheet", Qt::Key_Right);
  EXPECT_TRUE(sees("Sheet")) << "moving alone opens nothing";
  press_key("Sheet", Qt::Key_Return);
  EXPECT_EQ(text("FolderLabel"), "Spitfire IX Zwillinge");
  press_key("SelLab", Qt::Key_Down);
  EXPECT_EQ(text("FolderLabel"), "Spitfire V");
  EXPECT_TRUE(list("SelLab")->selectionModel()->isSelected(list("SelLab")->entries().row_of(2)));
}

TEST_F(Browsing, TheKeyboardGoesFromTheSheetToTheListAndBack) {
  open_group();
  widget("Sheet")->setFocus();
  press_key("Sheet", Qt::Key_Home);
  press_key("Sheet", Qt::Key_Space);
  EXPECT_TRUE(list("SelLab")->hasFocus());
  press_key("SelLab", Qt::Key_Escape);
  EXPECT_TRUE(sheet()->hasFocus());
}

TEST_F(Browsing, ATileIsClickedLikeItsLabelAndHidingThePictureBringsTheSheetBack) {
  open_group();
  EXPECT_TRUE(sees("Sheet"));
  click_at(sheet()->viewport(), sheet()->reach(0).center());
  EXPECT_EQ(form().selection.current_selection, "Hurricane");
  EXPECT_FALSE(sees("Sheet"));
  click("Label27(0)");
  EXPECT_TRUE(sees("Sheet"));
  EXPECT_FALSE(sees("FolderLabel"));
  EXPECT_TRUE(sheet()->selectionModel()->isSelected(sheet()->entries().row_of(0)));
}

TEST_F(Browsing, ADoubleClickOnATileChoosesOnce) {
  open_group();
  form().game.G2.add_row({kGroup, ""});
  const QPoint spot = sheet()->viewport()->mapTo(&window(), sheet()->reach(0).center());
  click_at(sheet()->viewport(), sheet()->reach(0).center());
  ASSERT_TRUE(sees("Image1"));
  press_again(spot);
  EXPECT_FALSE(sees("Frame3"));
  const CellTable& games = form().game.G2;
  EXPECT_EQ(games.cell(games.row_count() - 1, GameTable::kFolder), "Hurricane");
}

TEST_F(Browsing, TheSecondPressOnAPictureThatWasClickedItselfChoosesNoMore) {
  open_group();
  click("SelLab(0)");
  const int rows = form().game.G2.row_count();
  auto* shown_picture = widget("Image1");
  const QPoint spot = shown_picture->mapTo(&window(), shown_picture->rect().center());
  QTest::mousePress(shown_picture, Qt::LeftButton, Qt::NoModifier, shown_picture->rect().center());
  press_again(spot);
  EXPECT_TRUE(sees("Frame3"));
  EXPECT_EQ(form().game.G2.row_count(), rows);
}

TEST_F(Browsing, PicturesAreDecodedAtTheSizeOfATileAndDamagedOnesArePlates) {
  store("Damaged", "mypic", "\xFF\xD8\xFF\xE0 no picture at all");
  using namespace std::string_literals;
  store(
      "Vast", "mypic",
      "BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x80\x3E\0\0\x80\x3E\0\0\x01\0\x18\0"s + std::string(28, '\0'));
  open_group();
  ASSERT_TRUE(QTest::qWaitFor([this] { return tile(0) != nullptr && tile(4) != nullptr; }, kAtLast));
  EXPECT_TRUE(tile(0)->picture.isNull()) << "damaged";
  EXPECT_EQ(tile(1)->picture.height(), sheet()->picture_size().height());
  ASSERT_TRUE(QTest::qWaitFor([this] { return tile(5) != nullptr; }, kAtLast));
  EXPECT_EQ(form().selection.SelLab[4].caption, "Vast");
  EXPECT_TRUE(tile(4)->picture.isNull());
  EXPECT_EQ(tile(4)->why, "The picture is too large to be shown: 16000 x 16000 pixels");
}

TEST_F(Browsing, OnlyWhatIsSeenIsReadAndNothingWhileAnActionRuns) {
  for (int index = 0; index < 300; ++index) {
    store("Z " + std::to_string(1000 + index), "mypic", picture({8, 6}));
  }
  window().setProperty(theme::kWorkingProperty, true);
  open_group();
  QTest::qWait(kNever);
  EXPECT_EQ(tile(0), nullptr);
  window().setProperty(theme::kWorkingProperty, false);
  sheet()->viewport()->update();
  ASSERT_TRUE(QTest::qWaitFor([this] { return tile(0) != nullptr; }, kAtLast));
  QTest::qWait(kNever);
  EXPECT_EQ(tile(303), nullptr);
  sheet()->scrollToBottom();
  ASSERT_TRUE(QTest::qWaitFor([this] { return tile(303) != nullptr; }, kAtLast));
  click("Label10(2)");
  EXPECT_EQ(tile(303), nullptr) << "what a closed pane would keep is given back";
}

TEST_F(Browsing, UsedFoldersAreMarkedInListAndSheet) {
  form().game.G2.add_row({kGroup, "Spitfire V"});
  open_group();
  for (const char* name : {"SelLab", "Sheet"}) {
    EXPECT_TRUE(list(name)->entries().row_of(2).data(EntryModel::kMarkedRole).toBool()) << name;
    EXPECT_FALSE(list(name)->entries().row_of(1).data(EntryModel::kMarkedRole).toBool()) << name;
  }
}

TEST_F(Browsing, TheCurrentFlightModelGroupIsMarkedInItsLabels) {
  folder.make_folder("~Vorlund/FlightModels/Late");
  click("Label9(2)");
  click(label_of("Label1", "Standard"));
  click("Label9(2)");
  const EntryModel& groups = list("Label1")->entries();
  EXPECT_FALSE(groups.row_of(0).data(EntryModel::kMarkedRole).toBool());
  EXPECT_TRUE(groups.row_of(1).data(EntryModel::kMarkedRole).toBool());
  click("Label9(1)");
  EXPECT_FALSE(groups.row_of(0).data(EntryModel::kMarkedRole).toBool());
}

TEST_F(Browsing, AGroupOfTwentyThousandFoldersNeedsNoMoreWidgetsThanASmallOne) {
  open_group();
  const auto widgets = window().findChildren<QWidget*>().size();
  click("Label10(2)");
  for (int index = 0; index < 20'000; ++index) {
    folder.make_folder("~Vorlund/GameStore/Zone libre/F " + std::to_string(index));
  }
  click(label_of("Label1", "Zone libre"));
  EXPECT_EQ(form().selection.SelLab.size(), 20'001U);
  EXPECT_EQ(window().findChildren<QWidget*>().size(), widgets);
  press_key("SelLab", Qt::Key_End);
  press_key("SelLab", Qt::Key_PageUp);
  press_key("SelLab", Qt::Key_PageDown);
  press_key("SelLab", Qt::Key_Return);
  EXPECT_EQ(form().selection.current_selection, "Foo bar");
}

TEST_F(Browsing, TheSheetOfPossibleSkinsGoesWithItsList) {
  open_two_possible_skins();
  auto* skins = dynamic_cast<ContactSheet*>(widget("SkinSheet"));
  ASSERT_EQ(skins->entries().rowCount(), 2);
  click_at(skins->viewport(), skins->reach(1).center());
  EXPECT_EQ(text("Label32"), "Captured P38H");
  EXPECT_EQ(list("List4")->currentIndex().row(), 1);
  type("List4", "allied");
  EXPECT_EQ(shown("SkinSheet"), QStringList{"Allied\\Wings P38H"});
  press_key("List4", Qt::Key_Escape);
  QTest::mouseClick(skins->viewport(), Qt::LeftButton, Qt::NoModifier, skins->reach(1).center());
  QTest::mouseDClick(skins->viewport(), Qt::LeftButton, Qt::NoModifier, skins->reach(1).center());
  EXPECT_FALSE(sees("Frame4"));
  EXPECT_EQ(table().cell(1, PlaneTable::kSkinFolder), "Captured P38H");
}

}  // namespace
}  // namespace vorlund::test
