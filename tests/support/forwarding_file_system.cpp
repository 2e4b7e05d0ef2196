// Announces each operation to the double and hands it on.
#include "support/forwarding_file_system.h"

#include <utility>

namespace vorlund::test {

namespace {

std::string words(std::string_view verb, std::string_view path) {
  std::string text(verb);
  return text.append(" ").append(path);
}

std::string_view durability_words(Durability durability) {
  return durability == Durability::kFlushed ? " (flushed)" : "";
}

}  // namespace

std::string ForwardingFileSystem::current_folder() {
  before({Effect::kReading, "find the current folder", {}, {}, {}});
  return inner_.current_folder();
}

bool ForwardingFileSystem::FileExists(std::string_view path) {
  return before({Effect::kQuestion, words("file exists", path), {}, {}, {}}) && inner_.FileExists(path);
}

bool ForwardingFileSystem::FolderExists(std::string_view path) {
  return before({Effect::kQuestion, words("folder exists", path), {}, {}, {}}) && inner_.FolderExists(path);
}

bool ForwardingFileSystem::is_there(std::string_view path) {
  before({Effect::kReading, words("file is there", path), {}, {}, {}});
  return inner_.is_there(path);
}

std::vector<std::string> ForwardingFileSystem::take_unseen() {
  return inner_.take_unseen();
}

bool ForwardingFileSystem::lies_inside(std::string_view folder, std::string_view root) {
  std::string text = words("lies inside", root).append(": ").append(folder);
  return before({Effect::kQuestion, std::move(text), {}, {}, {}}) && inner_.lies_inside(folder, root);
}

std::vector<FolderEntry> ForwardingFileSystem::entries(std::string_view folder) {
  before({Effect::kReading, words("list", folder), {}, {}, {}});
  return inner_.entries(folder);
}

std::unique_ptr<FileReader> ForwardingFileSystem::open_file(std::string_view path) {
  before({Effect::kReading, words("read", path), {}, {}, {}});
  return inner_.open_file(path);
}

void ForwardingFileSystem::replace_file(std::string_view path, std::string_view bytes,
                                        Durability durability) {
  std::string text = words("replace", path).append(durability_words(durability));
  before({Effect::kWriting, std::move(text), {}, path, bytes});
  inner_.replace_file(path, bytes, durability);
}

CopyOutcome ForwardingFileSystem::copy_file(std::string_view source, std::string_view target,
                                            Durability durability) {
  std::string text = words("copy", source).append(" -> ").append(target).append(durability_words(durability));
  before({Effect::kWriting, std::move(text), source, target, {}});
  return inner_.copy_file(source, target, durability);
}

void ForwardingFileSystem::remove_file(std::string_view path) {
  before({Effect::kChanging, words("remove", path), {}, {}, {}});
  inner_.remove_file(path);
}

void ForwardingFileSystem::foresee(Change change, std::string_view path) {
  before({Effect::kReading, words("foresee", path), {}, {}, {}});
  inner_.foresee(change, path);
}

CopyForecast ForwardingFileSystem::foresee_copy(std::string_view source, std::string_view target) {
  before({Effect::kReading, words("foresee copy", source).append(" -> ").append(target), {}, {}, {}});
  return inner_.foresee_copy(source, target);
}

std::optional<std::uint64_t> ForwardingFileSystem::free_room(std::string_view folder) {
  return inner_.free_room(folder);
}

void ForwardingFileSystem::start_program(std::string_view path, std::string_view folder) {
  before({Effect::kChanging, words("start", path).append(" in ").append(folder), {}, {}, {}});
  inner_.start_program(path, folder);
}

FolderLocks ForwardingFileSystem::lock_folders(const std::vector<std::string>& folders,
                                               std::chrono::milliseconds wait) {
  std::string text = "lock";
  for (const std::string& folder : folders)
    text.append(&folder == folders.data() ? " " : ", ").append(folder);
  before({Effect::kReading, std::move(text), {}, {}, {}});
  return inner_.lock_folders(folders, wait);
}

void ForwardingFileSystem::begin_action(Pulse pulse, std::string_view staging) {
  inner_action_.emplace(inner_, std::move(pulse), staging);
}

void ForwardingFileSystem::end_action() {
  inner_action_.reset();
}

}  // namespace vorlund::test
