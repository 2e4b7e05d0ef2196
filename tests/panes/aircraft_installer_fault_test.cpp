// Each file operation of an aircraft-set installation is failed in turn: what it leaves is whole, and can be
// resumed.
#include <map>
#include <set>
#include <utility>

#include "aircraft/aircraft_fixture.h"
#include "aircraft/plane_record.h"
#include "support/faulty_file_system.h"
#include "support/form_in_folder.h"

namespace vorlund {
namespace {

using test::FaultKind;
using test::FaultSpan;
using test::same_values;
using test::value_text;
using Tree = std::map<std::string, std::string>;

/// A game folder with something for every step of the installer.
class InstalledFolder {
 public:
  InstalledFolder() {
    folder.write("PLANES.DAT", std::string(4 + 216 * 3, '\xEE'));
    folder.write("loadout.dat", std::string(9000, '\xEE'));
    folder.write("pnames.str", compose_pilot_names(std::vector<std::string>(30, "Old"), ""));
    for (const char* name : {"picplnb.mnu", "picplna.mnu", "picplng.mnu"}) folder.write(name, "old menu");
    folder.write("group.dat", "old");
    folder.write("psp09.3dz", "old");
    folder.write("untouched.ico", "icon");
    folder.write("~Vorlund/CurrentPlaneSet.txt", "old record\r\n");
    folder.write("~Vorlund/FlightModels/1944/group.dat", "new");
    for (const char* name : {"P38", "P51"}) {
      const std::string model = "~Vorlund/FlightModels/1944/" + std::string(name) + "/a.";
      folder.write(model + "oaw", value_text(name, same_values(168, "7")));
      folder.write(model + "lo1", value_text(name, same_values(308, "8")));
      folder.write(model + "lo2", value_text(name, same_values(60, "9")));
      folder.write(model + "flt", name);
    }
    folder.write("~Vorlund/SkinStore/RAF/Spit/psp09.3dz", "shape");
    folder.write("~Vorlund/SkinStore/RAF/Spit/psp09.tpc", "texture");
  }

  void install(FileSystem& files) const {
    test::FormInFolder work(files, folder.path());
    PlanePane& pane = work.form.plane;
    pane.G1.flight_model_group = "1944";
    pane.G1.rows[1].cells = {"P38H", "RAF", "Spit", "0", "P38", "Lightning", "Allied", "Yes", "F/B", "50"};
    pane.G1.rows[2].cells = {"P38J", "", "", "1", "P51", "Mustang", "German", "No", "Bomber", "75"};
    pane.G1.g1update();
    work.form.Label8_Click();
  }

  test::TemporaryFolder folder;
};

bool is_neighbour(const std::string& name) {
  return is_staging_name(name.substr(name.rfind('/') + 1));
}

/// Notes the whole folder before each operation that changes it: the states an undisturbed run goes through.
class StateRecorder : public test::ForwardingFileSystem {
 public:
  StateRecorder(FileSystem& inner, const test::TemporaryFolder& folder)
      : ForwardingFileSystem(inner), folder_(folder) {}

  void note() {
    for (const auto& [name, bytes] : folder_.tree()) states[name].insert(bytes);
  }

  std::map<std::string, std::set<std::string>> states;

 protected:
  bool before(const Operation& operation) override {
    if (operation.effect == Effect::kWriting) note();
    return true;
  }

 private:
  const test::TemporaryFolder& folder_;
};

class AircraftInstallerFaults : public ::testing::TestWithParam<std::pair<FaultKind, FaultSpan>> {};

TEST_P(AircraftInstallerFaults, LeaveEveryFileWholeAndCanBeResumed) {
  const auto [kind, span] = GetParam();
  const auto files = make_platform_file_system();
  const InstalledFolder undisturbed;
  const Tree before = undisturbed.folder.tree();
  StateRecorder recorder(*files, undisturbed.folder);
  undisturbed.install(recorder);
  recorder.note();
  const Tree goal = undisturbed.folder.tree();
  // What is patched slot by slot is written once; an error between two steps keeps those before it.
  struct Step {
    const char* name;
    std::size_t offset;
    std::size_t size;
  };
  Tree patched = before;
  for (const Step& step : {Step{"PLANES.DAT", 4, 216}, Step{"loadout.dat", 4, 308},
                           Step{"loadout.dat", 7928, 60}, Step{"loadout.dat", 312, 308}}) {
    std::string& bytes = patched.at(step.name);
    bytes.replace(step.offset, step.size, goal.at(step.name), step.offset, step.size);
    recorder.states[step.name].insert(bytes);
  }
  int number = 1;
  int failures = 0;
  for (bool struck = true; struck; ++number) {
    const InstalledFolder sample;
    test::FaultyFileSystem faulty(*files);
    faulty.arm({number, kind, span});
    bool ended_with_error = false;
    try {
      sample.install(faulty);
    } catch (const ActionError&) {
      ended_with_error = true;
    }
    struck = faulty.struck();
    SCOPED_TRACE("operation " + std::to_string(number) + ": " + faulty.struck_operation());
    ASSERT_EQ(ended_with_error, faulty.failed());
    const Tree tree = sample.folder.tree();
    for (const auto& [name, bytes] : tree) {
      ASSERT_TRUE(is_neighbour(name) || recorder.states.contains(name)) << name << " should not be there";
    }
    // An existence test without a right answers no, which is no failure: the run then takes another way.
    if (!ended_with_error) continue;
    ++failures;
    for (const auto& [name, bytes] : tree) {
      ASSERT_TRUE(is_neighbour(name) || recorder.states.at(name).contains(bytes)) << name << " is not whole";
    }
    ASSERT_EQ(tree.at("~Vorlund/CurrentPlaneSet.txt"), before.at("~Vorlund/CurrentPlaneSet.txt"));
    sample.install(*files);
    ASSERT_EQ(sample.folder.tree(), goal);
  }
  RecordProperty("faults", number - 2);
  EXPECT_GE(failures, 12) << "the sweep must reach every file that is written";
}

INSTANTIATE_TEST_SUITE_P(Sweep, AircraftInstallerFaults, testing::ValuesIn(test::kEveryFault));

}  // namespace
}  // namespace vorlund
