// Does one action in the current folder by clicks on the real window; its argument is the action's name,
// "look", which looks into the game folder, or "everything" for every action of the program that touches
// files.
#include <cstdio>
#include <exception>
#include <string_view>

#include "actions/actions.h"
#include "actions/marks.h"
#include "hand.h"
#include "window/application.h"
#include "window/main_window.h"

namespace {

/// Installs both sets, saves one, loads both kinds, deletes missions and cleans up. Pictures, descriptions
/// and names are read on the way.
void do_everything(vorlund::Hand& hand) {
  for (const char* name :
       {"Label17", "Label9(1)", "Label1(0)", "SelLab(0)", "Image1", "Label9(2)", "Label1(0)", "Label9(0)",
        "Label1(0)", "SelLab(0)", "Image1", "Label2", "Option1(0)"}) {
    hand.click(name);
  }
  hand.click_row("List2", 0);
  for (const char* name : {"Label33", "PictureMenus"}) hand.click(name);
  for (const char* name : {"PMenFrame", "WhatsLoaded", "GameLoad", "Label8", "WhatsLoaded", "Label11"}) {
    hand.click(name);
  }
  hand.click_row("File5", 0);
  for (const char* name : {"Label4", "Label9(3)"}) hand.click(name);
  for (const char* list : {"File2", "File3"}) hand.click_row(list, 0);
  for (const char* name : {"Label19", "DelMSN", "Label5", "ExitButton"}) hand.click(name);
}

/// Looks at all that the pane of the game folder shows, between the two marks.
void look(vorlund::Hand& hand) {
  hand.click("Label17");
  vorlund::test::mark(vorlund::test::kActionBegins);
  hand.click("Contents(0)");
  for (int kind = 0; kind < static_cast<int>(vorlund::kContentsKinds.size()); ++kind) {
    hand.click_row("ContentsKinds", kind);
  }
  for (const char* name : {"ContentsAgain", "ContentsCopy", "ContentsHide"}) hand.click(name);
  vorlund::test::mark(vorlund::test::kActionHasEnded);
  hand.click("ExitButton");
}

/// Clicks a control, or the entry of a list that "List[0]" names.
void click(vorlund::Hand& hand, const QString& name) {
  if (!name.endsWith("[0]")) return hand.click(name);
  hand.click_row(name.chopped(3), 0);
}

void act(vorlund::MainWindow& window, std::string_view name) {
  vorlund::Hand hand(window);
  if (name == "everything") return do_everything(hand);
  if (name == "look") return look(hand);
  const vorlund::test::ActionOfProgram* action = vorlund::test::action_of_name(name);
  for (const char* control : action->before) click(hand, control);
  vorlund::test::mark(vorlund::test::kActionBegins);
  click(hand, action->click);
  vorlund::test::mark(vorlund::test::kActionHasEnded);
  hand.click("ExitButton");
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view name = argc == 2 ? argv[1] : "";
  if (name != "everything" && name != "look" && vorlund::test::action_of_name(name) == nullptr) return 2;
  try {
    return vorlund::run_application(argc, argv, [name](vorlund::MainWindow& window) { act(window, name); });
  } catch (const std::exception& error) {
    std::fprintf(stderr, "window_action: %s\n", error.what());
    return 1;
  }
}
