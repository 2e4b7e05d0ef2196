// Another program is at work in a folder of the game, or looks can't be had: what the window then does and
// says.
#include <chrono>
#include <functional>
#include <optional>
#include <thread>
#include <utility>

#include "panes/form_fixture.h"

namespace vorlund {
namespace {

using namespace std::chrono_literals;
using test::left;

/// Takes every lock for one of a disk that knows none, and has not been allowed to look at some paths.
class PoorFileSystem : public test::StartedInFolder {
 public:
  using StartedInFolder::StartedInFolder;

  FolderLocks lock_folders(const std::vector<std::string>& folders, std::chrono::milliseconds wait) override {
    class NoLock : public FolderLock {
     public:
      explicit NoLock(const std::string& path) : FolderLock(path, path) {}
      Outcome take() override { return Outcome::kNoLocks; }
      void let_go() override {}
      void delete_left_overs() override {}
    };
    std::vector<std::unique_ptr<FolderLock>> locks;
    locks.push_back(std::make_unique<NoLock>(folders.front()));
    return {std::move(locks), wait};
  }

  std::vector<FolderEntry> entries(std::string_view folder) override {
    told = unseen;
    return StartedInFolder::entries(folder);
  }
  std::vector<std::string> take_unseen() override { return std::exchange(told, {}); }

  std::vector<std::string> unseen;  ///< what is not seen at any listing
  std::vector<std::string> told;
};

class TwoPrograms : public test::FormFixture {
 protected:
  /// What another program holds as long as the result lives.
  [[nodiscard]] FolderLocks held(const std::string& name) {
    return other_->lock_folders({name.empty() ? folder.path() : folder.path(name)}, 0ms);
  }

  /// Every action that writes or deletes.
  std::vector<std::function<void()>> actions() {
    return {[this] { form->GameLoad_Click(); },        [this] { form->Label8_Click(); },
            [this] { form->Label5_MouseUp(left()); },  [this] { form->DelMSN_MouseUp(left()); },
            [this] { form->Label11_Click(), save(); }, [this] { form->Label14_Click(), save(); },
            [this] { form->Label12_Click(), load(); }};
  }

 private:
  void save() {
    form->Text2_Change("Spring");
    form->Label4_Click();
  }

  void load() {
    form->File3_Click(0);
    form->Label19_Click();
  }

  std::unique_ptr<FileSystem> other_ = make_platform_file_system();
};

TEST_F(TwoPrograms, NoActionTouchesAFileWhileAnotherProgramHoldsOneOfItsFolders) {
  folder.write("Savedata/Default1.msn", "mission");
  folder.write("Savedata/c001.sve", "career");
  folder.write("old.pal", "loose");
  folder.write("~Vorlund/GameSetFiles/Winter", "Folder group\tFolder name\r\nSky\tDusk\r\n");
  start();
  for (const std::string name :
       {"", "Savedata", "Music", "~Vorlund", "~Vorlund\\GameStore\\Careers", "~Vorlund\\GameSetFiles"}) {
    for (const auto& action : actions()) {
      const auto before = folder.tree();
      {
        const FolderLocks locks = held(name);
        ASSERT_EQ(locks.in_use(), "");
        action();
      }
      EXPECT_EQ(folder.tree(), before) << name;
      EXPECT_EQ(form->desk.status_line.caption, "Nothing was done: another program is at work in \"" +
                                                    (name.empty() ? folder.path() : folder.path(name)) +
                                                    "\"");
    }
  }
}

TEST_F(TwoPrograms, EveryActionLetsGoOfItsFolders) {
  folder.write("Savedata/c001.sve", "career");
  folder.write("~Vorlund/GameSetFiles/Winter", "Folder group\tFolder name\r\nSky\tDusk\r\n");
  start();
  for (const auto& action : actions()) {
    action();
    EXPECT_EQ(held("").in_use(), "");
    EXPECT_FALSE(form->desk.status_line.caption.starts_with("Nothing was done"));
  }
}

TEST_F(TwoPrograms, AStartGoesOnWithTheSkinListThatIsThere) {
  folder.write("~Vorlund/SkinStore/Fighters/Blue/B17.TPC", "skin");
  folder.write("~Vorlund/SkinStore/SkinList.txt", "as it was");
  const FolderLocks locks = held("~Vorlund");
  start();
  EXPECT_EQ(folder.read("~Vorlund/SkinStore/SkinList.txt"), "as it was");
  EXPECT_EQ(form->desk.status_line.caption,
            "Confirm the game folder, then choose from the menu on the left\n"
            "The list of skins was left as it is: another program is at work in \"" +
                folder.path("~Vorlund") + "\"");
}

TEST_F(TwoPrograms, AStartWaitsForTheActionOfAnotherProgramToEnd) {
  folder.write("~Vorlund/SkinStore/SkinList.txt", "as it was");
  std::optional<FolderLocks> locks = held("~Vorlund");
  std::thread action([&locks] {
    std::this_thread::sleep_for(100ms);
    locks.reset();
  });
  start();
  action.join();
  EXPECT_EQ(folder.read("~Vorlund/SkinStore/SkinList.txt"), "");
  EXPECT_EQ(form->desk.status_line.caption, "Confirm the game folder, then choose from the menu on the left");
}

TEST_F(TwoPrograms, ADiskWithoutLocksIsSaidOnce) {
  PoorFileSystem poor(*platform, folder.path());
  form = std::make_unique<Form1>(poor, window, Version{1, 0, 7});
  form->Form_Load();
  const std::string told =
      "\nThe disk of \"" + folder.path() +
      "\" knows no locks: nothing keeps other programs from working there at the same time";
  form->GameLoad_Click();
  EXPECT_TRUE(form->desk.status_line.caption.ends_with(told)) << form->desk.status_line.caption;
  form->GameLoad_Click();
  EXPECT_EQ(form->desk.status_line.caption.find("knows no locks"), std::string::npos);
}

TEST_F(TwoPrograms, WhatCouldNotBeLookedAtIsNamed) {
  PoorFileSystem poor(*platform, folder.path());
  form = std::make_unique<Form1>(poor, window, Version{1, 0, 7});
  poor.unseen = {"C:\\a"};
  form->Form_Load();
  EXPECT_EQ(form->desk.status_line.caption,
            "Confirm the game folder, then choose from the menu on the left\n"
            "Taken for missing, for want of the right to look: C:\\a");
  poor.unseen = {"C:\\a", "C:\\b", "C:\\c", "C:\\d"};
  form->CleanUp();
  EXPECT_TRUE(form->desk.status_line.caption.ends_with(
      "\nTaken for missing, for want of the right to look: C:\\a; C:\\b; C:\\c; ..."));
}

}  // namespace
}  // namespace vorlund
