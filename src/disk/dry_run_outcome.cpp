// What a dry run has come to: the net change of every file.
#include <algorithm>
#include <string_view>
#include <utility>

#include "disk/dry_run_file_system.h"
#include "dry_run_parts.h"

namespace vorlund {

std::vector<ForeseenFile> DryRunFileSystem::foreseen(const Pulse& pulse) {
  std::vector<ForeseenFile> files;
  for (Folder& folder : folders_) {
    // In upper case names have the order of their bytes.
    std::vector<std::string_view> keys;
    for (const auto& [key, written] : folder.written) keys.push_back(key);
    for (const auto& [key, group] : folder.changed) {
      if (!folder.written.contains(key)) keys.push_back(key);
    }
    std::sort(keys.begin(), keys.end());
    for (const std::string_view key : keys) {
      if (pulse) pulse();
      const auto first = static_cast<std::ptrdiff_t>(files.size());
      add_foreseen(folder, std::string(key), files);
      std::sort(files.begin() + first, files.end(),
                [](const ForeseenFile& a, const ForeseenFile& b) { return a.name < b.name; });
    }
  }
  return files;
}

void DryRunFileSystem::add_foreseen(Folder& folder, const std::string& key,
                                    std::vector<ForeseenFile>& files) {
  ForeseenFile file;
  file.folder = folder.path;
  const auto written = folder.written.find(key);
  if (written != folder.written.end()) file.writes = written->second.writes;
  mark_what_counts(file.writes);
  const auto changed = folder.changed.find(key);
  if (changed == folder.changed.end()) {
    file.name = written->second.spelling;
    file.size = written->second.size;
    files.push_back(std::move(file));
    return;
  }
  Group before = group_on_disk(folder, key);
  std::erase_if(
      before, [](const Entry& entry) { return !is_file(entry.entry) || is_staging_name(entry.entry.name); });
  for (const Entry& entry : changed->second) {
    if (!is_file(entry.entry) || entry.is_original) continue;
    const auto replaced = settle(entry, before, file);
    if (replaced != before.end()) before.erase(replaced);
    files.push_back(file);
    file.writes.clear();
  }
  for (const Entry& entry : before) {
    const bool stays = std::any_of(changed->second.begin(), changed->second.end(), [&](const Entry& other) {
      return other.is_original && other.entry.name == entry.entry.name;
    });
    if (stays) continue;
    file.name = entry.entry.name;
    file.state = ForeseenFile::State::kDeleted;
    file.size = open(entry.content)->size();
    files.push_back(file);
  }
}

/// Finds out what becomes of a file; returns the one on the disk whose place it takes, if any.
DryRunFileSystem::Group::iterator DryRunFileSystem::settle(const Entry& entry, Group& before,
                                                           ForeseenFile& file) {
  using State = ForeseenFile::State;
  file.name = entry.entry.name;
  file.size = open(entry.content)->size();
  const auto stood = found_in(before, entry.entry.name);
  if (stood == before.end()) {
    file.state = State::kNew;
  } else if (!holds(entry.content, stood->content.path)) {
    file.state = State::kChanged;
  } else {
    file.state = stood->entry.name == entry.entry.name ? State::kInPlace : State::kRespelled;
  }
  return stood;
}

/// The last copy wins over those before it that hold other bytes; what is composed on top of it counts too.
void DryRunFileSystem::mark_what_counts(std::vector<ForeseenWrite>& writes) {
  const auto is_copy = [](const ForeseenWrite& write) { return !write.source.empty(); };
  const auto last = std::find_if(writes.rbegin(), writes.rend(), is_copy).base();
  for (auto write = writes.begin(); write != writes.end(); ++write) {
    if (last == writes.begin() || write >= last - 1) {
      write->counts = true;
    } else if (is_copy(*write)) {
      const bool equal_until_last = std::all_of(write + 1, last, [](const ForeseenWrite& later) {
        return later.outcome == CopyOutcome::kUnchanged;
      });
      write->counts = equal_until_last || holds({write->source, nullptr}, (last - 1)->source);
    }
  }
}

}  // namespace vorlund
