// What becomes of the spelling of a name when its file is written.
#pragma once

namespace vorlund {

/// How a file that is written over another is to be spelled.
enum class Spelling {
  kAsAsked,     ///< as the path spells it; other spellings of the name are removed
  kAsItStands,  ///< as the file that is there is spelled; further spellings stay
};

}  // namespace vorlund
