// What the targets of writes have in common on every platform: how a file is to be replaced, and copied to.
#pragma once

#include <cstdint>
#include <memory>

#include "disk/file_system.h"

namespace vorlund {

/// How a file that is written over another is to be spelled.
enum class Spelling {
  kAsAsked,     ///< as the path spells it; other spellings of the name are removed
  kAsItStands,  ///< as the file that is there is spelled; further spellings stay
};

/// How much of a file is to be written.
enum class Writing { kSpelling, kBytes };

/// Copies to a target. `holds` says whether the file that is there has the bytes already, `write` writes them
/// to what Target::begin gives. A staging folder that turns out not to serve is given up, and everything is
/// written once more beside the target.
template <typename Target, typename Folder, typename Write>
CopyOutcome copy_to(Target& target, bool holds, std::shared_ptr<Folder>& staging, Durability durability,
                    Write write) {
  if (holds) return target.keep(durability) ? CopyOutcome::kUnchanged : CopyOutcome::kWritten;
  write(target.begin(staging));
  if (!target.finish(durability)) {
    staging.reset();
    write(target.begin(nullptr));
    target.finish(durability);
  }
  return CopyOutcome::kWritten;
}

/// What copying a file of that size in bytes to the target would come to.
template <typename Target>
CopyForecast foresee_copy_to(Target& target, bool holds, std::uint64_t size) {
  if (holds && target.is_as_asked()) return {CopyOutcome::kUnchanged, size};
  target.foresee(holds ? Writing::kSpelling : Writing::kBytes);
  return {CopyOutcome::kWritten, size};
}

}  // namespace vorlund
