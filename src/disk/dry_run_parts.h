// What a dry run keeps: folders that were written to, and the names in them that differ from the disk.
#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/text.h"
#include "disk/dry_run_file_system.h"

namespace vorlund {

/// What is in a file: what a file of the disk holds, or composed bytes.
struct DryRunFileSystem::Content {
  std::string path;  ///< "" where the bytes were composed
  std::shared_ptr<const std::string> bytes;
};

/// One spelling of a name in a folder.
struct DryRunFileSystem::Entry {
  FolderEntry entry;
  Content content;
  bool is_original = false;  ///< stands so on the disk
};

/// What was written under a name.
struct DryRunFileSystem::Written {
  std::vector<ForeseenWrite> writes;
  std::string spelling;    ///< of what stands there already, while nothing has changed
  std::uint64_t size = 0;  ///< of the same, in bytes
};

/// A folder that was written to.
struct DryRunFileSystem::Folder {
  std::string path;
  bool is_locked = false;
  std::optional<std::vector<FolderEntry>> on_disk;                 ///< read when first needed
  std::unordered_map<std::string, std::vector<std::size_t>> keys;  ///< entries on the disk by name
  std::unordered_map<std::string, Group> changed;                  ///< by name, in upper case
  std::unordered_map<std::string, Written> written;                ///< by name, in upper case
};

/// A name in a folder.
struct DryRunFileSystem::Place {
  std::string folder_path;
  std::string name;
  std::string key;
  Folder* folder = nullptr;  ///< null for one that was not written to
  Group* group = nullptr;    ///< null where the name is as on the disk
};

inline bool is_file(const FolderEntry& entry) {
  return entry.kind == EntryKind::kFile;
}

/// The spelling that a name leads to: the exact one, else the first in the order of listings.
template <typename Entries>
auto found_in(Entries& group, std::string_view name) {
  auto found =
      std::find_if(group.begin(), group.end(), [&](const auto& one) { return one.entry.name == name; });
  if (found != group.end()) return found;
  return std::min_element(group.begin(), group.end(),
                          [](const auto& a, const auto& b) { return name_less(a.entry.name, b.entry.name); });
}

}  // namespace vorlund
