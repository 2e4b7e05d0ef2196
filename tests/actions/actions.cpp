// The table of the actions, and the clicks of them on a window object without a window.
#include "actions/actions.h"

#include <algorithm>
#include <cctype>
#include <functional>
#include <map>
#include <ostream>

#include "actions/careers_under_fire.h"
#include "actions/game_under_fire.h"
#include "actions/set_ups_under_fire.h"

namespace vorlund::test {

namespace {

template <class Folder>
std::unique_ptr<FolderUnderFire> make() {
  return std::make_unique<Folder>();
}

void click(Form1& form, const std::string& name) {
  const MouseEvent left{MouseButton::kLeft, 0, 10, 10};
  static const std::map<std::string, std::function<void(Form1&, const MouseEvent&)>> kClicks = {
      {"", [](Form1& at, const MouseEvent&) { at.Form_Load(); }},
      {"WhatsLoaded", [](Form1& at, const MouseEvent&) { at.WhatsLoaded_Click(); }},
      {"GameLoad", [](Form1& at, const MouseEvent&) { at.GameLoad_Click(); }},
      {"Label10(1)", [](Form1& at, const MouseEvent&) { at.Label10_Click(1); }},
      {"Label8", [](Form1& at, const MouseEvent&) { at.Label8_Click(); }},
      {"Label5", [](Form1& at, const MouseEvent& event) { at.Label5_MouseUp(event); }},
      {"DelMSN", [](Form1& at, const MouseEvent& event) { at.DelMSN_MouseUp(event); }},
      {"Label11", [](Form1& at, const MouseEvent&) { at.Label11_Click(); }},
      {"File5[0]", [](Form1& at, const MouseEvent&) { at.File5_Click(0); }},
      {"Label4", [](Form1& at, const MouseEvent&) { at.Label4_Click(); }},
      {"Label9(3)", [](Form1& at, const MouseEvent& event) { at.Label9_MouseUp(3, event); }},
      {"File2[0]", [](Form1& at, const MouseEvent&) { at.File2_Click(0); }},
      {"File3[0]", [](Form1& at, const MouseEvent&) { at.File3_Click(0); }},
      {"Label19", [](Form1& at, const MouseEvent&) { at.Label19_Click(); }},
  };
  kClicks.at(name)(form, left);
}

bool is_start(const ActionOfProgram& action) {
  return *action.click == '\0';
}

}  // namespace

void PrintTo(const ActionOfProgram& action, std::ostream* out) {
  *out << action.name;
}

const std::array<ActionOfProgram, kActionCount>& actions() {
  static const std::array<ActionOfProgram, kActionCount> kActions = {{
      {"start", {}, "", "~Vorlund/SkinStore/SkinList.txt", make<StartUnderFire>},
      {"install", {"WhatsLoaded"}, "GameLoad", "~Vorlund/CurrentGameSet.txt", make<GameUnderFire>},
      {"install-aircraft",
       {"WhatsLoaded", "Label10(1)"},
       "Label8",
       "~Vorlund/CurrentPlaneSet.txt",
       make<AircraftUnderFire>},
      {"clean-up", {}, "Label5", "~Vorlund/CurrentPlaneSet.txt", make<CareersUnderFire>},
      {"delete-missions", {}, "DelMSN", "", make<MissionsUnderFire>},
      {"save", {"WhatsLoaded", "Label11", "File5[0]"}, "Label4", "", make<SaveUnderFire>},
      {"load",
       {"Label9(3)", "File2[0]", "File3[0]"},
       "Label19",
       "~Vorlund/CurrentGameSet.txt",
       make<LoadUnderFire>},
  }};
  return kActions;
}

const ActionOfProgram* action_of_name(std::string_view name) {
  const auto found = std::find_if(actions().begin(), actions().end(),
                                  [name](const ActionOfProgram& action) { return action.name == name; });
  return found == actions().end() ? nullptr : &*found;
}

void prepare(const ActionOfProgram& action, Form1& form) {
  if (is_start(action)) return;
  form.Form_Load();
  for (const char* name : action.before) click(form, name);
}

void act(const ActionOfProgram& action, Form1& form) {
  click(form, action.click);
}

std::string name_in_tests(const ActionOfProgram& action) {
  std::string name;
  bool begins = true;
  for (const char* at = action.name; *at != '\0'; begins = *at++ == '-') {
    if (*at == '-') continue;
    name += begins ? static_cast<char>(std::toupper(static_cast<unsigned char>(*at))) : *at;
  }
  return name;
}

void lay_out_for_all(const TemporaryFolder& folder) {
  Tree files = GameUnderFire().before();
  files.merge(Tree(SaveUnderFire().before()));
  files.merge(Tree(LoadUnderFire().before()));
  files.erase("Savedata/c001.SVE");  // a clean-up refuses two spellings of one save
  files["Savedata/c901.sve"] = made_bytes(901, 70000);
  files["Savedata/C902.SVE"] = made_bytes(902, 3000);
  lay_out(files, folder);
}

}  // namespace vorlund::test
