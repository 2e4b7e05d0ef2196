// The records of what is installed in the sample folder, and the set-ups its player has saved.
#pragma once

#include "sample_folder.h"

namespace vorlund::sample {

/// Writes both records, the saved set-ups of both kinds, and the files that the installed sets and aircraft
/// have left in the game folder.
void write_records(SampleFolder& folder);

}  // namespace vorlund::sample
