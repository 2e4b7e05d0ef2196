// Tells whole files from halves, and what may be there from what may not.
#include "actions/folder_under_fire.h"

#include <filesystem>
#include <string_view>

#include "disk/file_system.h"

namespace vorlund::test {

namespace {

std::string lower(std::string name) {
  for (char& character : name) {
    if (character >= 'A' && character <= 'Z') character = static_cast<char>(character - 'A' + 'a');
  }
  return name;
}

bool is_neighbour(const std::string& name) {
  return is_staging_name(name.substr(name.find_last_of('/') + 1));
}

}  // namespace

std::string made_bytes(std::uint32_t seed, std::size_t size) {
  std::string bytes(size, '\0');
  std::uint32_t state = seed * 2654435761U + 1;
  for (char& byte : bytes) {
    state = state * 1664525U + 1013904223U;
    byte = static_cast<char>(state >> 24);
  }
  return bytes;
}

std::string with(std::string content, std::size_t offset, const std::string& bytes) {
  if (content.size() < offset + bytes.size()) content.resize(offset + bytes.size(), '\0');
  return content.replace(offset, bytes.size(), bytes);
}

void lay_out(const Tree& files, const TemporaryFolder& folder) {
  for (const auto& [name, content] : files) {
    folder.write(name, content);
#ifndef _WIN32
    using std::filesystem::perms;
    std::filesystem::permissions(std::filesystem::path(folder.path()) / name,
                                 perms::group_write | perms::others_write,
                                 std::filesystem::perm_options::add);
#endif
  }
}

void FolderUnderFire::stay(const std::string& name, const std::string& content) {
  stand(name, content);
  appear(name, content);
}

void FolderUnderFire::stand(const std::string& name, const std::string& content) {
  before_[name] = content;
  pass(name, content);
}

void FolderUnderFire::appear(const std::string& name, const std::string& content) {
  finished_[name] = content;
  pass(name, content);
}

void FolderUnderFire::create(const std::string& source, const std::string& name, const std::string& content) {
  stay(source, content);
  appear(name, content);
}

void FolderUnderFire::pass(const std::string& name, const std::string& content) {
  steps_[lower(name)].insert(content);
}

void FolderUnderFire::go(const std::string& name, const std::string& content) {
  stand(name, content);
  may_go_.insert(lower(name));
}

void FolderUnderFire::stand_too(const std::string& name, const std::string& content) {
  stand(name, content);
  may_be_twice_.insert(lower(name));
}

std::string FolderUnderFire::difference(const Tree& found) const {
  std::string report;
  for (const auto& [name, content] : finished_) {
    const auto other = found.find(name);
    if (other == found.end()) report += name + " is missing; ";
    if (other != found.end() && other->second != content) report += name + " differs; ";
  }
  for (const auto& [name, content] : found) {
    if (!finished_.contains(name)) report += name + " is left over; ";
  }
  return report;
}

bool FolderUnderFire::may_hold(const std::string& name, const std::string& content) const {
  const auto steps = steps_.find(lower(name));
  return steps != steps_.end() && steps->second.contains(content);
}

bool FolderUnderFire::may_go(const std::string& name) const {
  return may_go_.contains(lower(name));
}

std::string FolderUnderFire::damage(const Tree& found) const {
  std::string report = strays(found);
  for (const auto& [name, content] : found) {
    const auto steps = steps_.find(lower(name));
    if (is_neighbour(name) || steps == steps_.end() || steps->second.contains(content)) continue;
    report += name + " holds " + std::to_string(content.size()) + " bytes, neither the old nor the new; ";
  }
  return report;
}

std::string FolderUnderFire::strays(const Tree& found) const {
  std::string report;
  std::map<std::string, int> spellings;
  for (const auto& [name, content] : found) {
    if (is_neighbour(name) || name.ends_with('/')) continue;
    if (!steps_.contains(lower(name))) report += name + " is new; ";
    if (++spellings[lower(name)] > (may_be_twice_.contains(lower(name)) ? 2 : 1))
      report += name + " is there under two spellings; ";
  }
  for (const auto& [name, content] : before_) {
    if (!spellings.contains(lower(name)) && !may_go_.contains(lower(name))) report += name + " is gone; ";
  }
  return report;
}

}  // namespace vorlund::test
