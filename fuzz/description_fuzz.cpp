// Fuzzes the reader of "contents.txt": every line is shown, ended by CR LF.
#include "disk/store.h"
#include "surroundings.h"

using namespace vorlund;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Surroundings surroundings;
  surroundings.write("\\~Vorlund\\GameStore\\Scenery\\Winter\\contents.txt", fuzz::as_bytes(data, size));
  Form1& form = surroundings.form;
  SelectionPane& pane = form.selection;
  pane.mode = PaneMode::kGameSet;
  pane.make_group_labels({"Scenery"});
  form.Label1_Click(0);
  form.SelLab_Click(0);
  fuzz::require(pane.Text1.text.empty() == (size == 0));
  fuzz::require(pane.Text1.text.empty() || pane.Text1.text.ends_with("\r\n"));
  return 0;
}
