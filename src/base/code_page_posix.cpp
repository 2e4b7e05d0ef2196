// Outside Windows the game's text is Windows-1252, as on the western systems it was sold for.
#include "base/code_page_table.h"

namespace vorlund {

const CodePageTable& code_page_table() {
  return windows_1252_table();
}

}  // namespace vorlund
