// Which plane a skin is made for.
#include "aircraft/skin_code.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "aircraft/plane_codes.h"
#include "base/text.h"

namespace vorlund {
namespace {

struct CodeCase {
  std::vector<FolderEntry> entries;
  std::string code;
};

TEST(SkinCode, ComesFromTheFirstMatchingFileByName) {
  const CodeCase cases[] = {
      {{}, ""},
      {{{"psp09.tpc", EntryKind::kFile, false}}, ""},
      {{{"psp09.3dz", EntryKind::kFile, false}}, "SP09"},
      {{{"PSP09.3DZ", EntryKind::kFile, false}}, "SP09"},
      {{{"pzzzz.3dz", EntryKind::kFile, false}, {"psp09.3dz", EntryKind::kFile, false}}, "SP09"},
      {{{"Pzzzz.3dz", EntryKind::kFile, false}, {"pabcd.3dz", EntryKind::kFile, false}}, "ABCD"},
      {{{"pabcd.3dz", EntryKind::kFolder, false}, {"psp09.3dz", EntryKind::kFile, false}}, "SP09"},
      {{{"pabcd.3dz", EntryKind::kFile, true}, {"psp09.3dz", EntryKind::kFile, false}}, "SP09"},
      {{{"psp09extra.3dz", EntryKind::kFile, false}}, "SP09"},
      {{{"pé1.3dz", EntryKind::kFile, false}}, "É1.3"},
      {{{"p.3dz", EntryKind::kFile, false}}, ".3DZ"},
  };
  for (const CodeCase& given : cases) {
    EXPECT_EQ(first_file_code(given.entries, kShapePattern), given.code)
        << (given.entries.empty() ? "no files" : given.entries.front().name);
  }
}

TEST(SkinCode, EveryPlaneCodeHasItsNumberInAnyCase) {
  const PlaneCodes codes = PlaneCodeSet();
  for (int index = 0; index < kPlaneCount; ++index) {
    const std::string& code = codes[static_cast<std::size_t>(index)];
    EXPECT_EQ(plane_code_index(code), index) << code;
    EXPECT_EQ(plane_code_index(to_upper(code)), index) << code;
  }
  for (const char* code : {"", "ZZZZ", "SP0", "SP099", " SP09"})
    EXPECT_EQ(plane_code_index(code), -1) << code;
}

}  // namespace
}  // namespace vorlund
