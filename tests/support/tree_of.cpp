// Walks through a file system.
#include "support/tree_of.h"

#include <string_view>
#include <vector>

namespace vorlund::test {

namespace {

using Tree = std::map<std::string, std::string>;

void add_below(FileSystem& files, const std::string& folder, const std::string& below, Tree& tree) {
  const std::vector<FolderEntry> entries = files.entries(folder);
  if (entries.empty() && !below.empty()) tree[below] = "";
  for (const FolderEntry& entry : entries) {
    const std::string path = folder + "\\" + entry.name;
    if (entry.kind == EntryKind::kFolder) {
      add_below(files, path, below + entry.name + "/", tree);
    } else {
      tree[below + entry.name] = files.read_file(path);
    }
  }
}

}  // namespace

Tree tree_of(FileSystem& files, const std::string& folder) {
  Tree tree;
  add_below(files, folder, "", tree);
  return tree;
}

}  // namespace vorlund::test
