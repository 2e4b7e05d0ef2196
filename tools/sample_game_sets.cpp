// Writes the set folders of the sample store, their loader patches, and what installed sets leave behind.
#include "sample_game_sets.h"

#include <algorithm>
#include <charconv>

#include "core/text.h"
#include "sample_game_files.h"
#include "sample_random.h"

namespace vorlund::sample {
namespace {

constexpr std::string_view kPatchGroup = "Patches";
constexpr std::string_view kRestoringSet = "Original values";

/// One run of bytes that a loader patch writes into the game's program.
struct PatchRun {
  std::size_t first;  ///< offset of the first byte
  std::string bytes;
};

/// The names that a set's list stands for.
std::vector<std::string> file_names(std::string_view list) {
  std::vector<std::string> names;
  while (!list.empty()) {
    const std::size_t end = std::min(list.find(';'), list.size());
    std::string_view item = list.substr(0, end);
    list.remove_prefix(std::min(end + 1, list.size()));
    int count = 1;
    if (const std::size_t star = item.find('*'); star != std::string_view::npos) {
      std::from_chars(item.data() + star + 1, item.data() + item.size(), count);
      item = item.substr(0, star);
    }
    for (int number = 0; number < count; ++number) {
      std::string name(item);
      int rest = number;
      for (std::size_t place = name.rfind('#'); place != std::string::npos; place = name.rfind('#')) {
        name[place] = static_cast<char>('0' + rest % 10);
        rest /= 10;
      }
      names.push_back(name);
    }
  }
  return names;
}

bool has_extension(std::string_view name, std::string_view extension) {
  return same_name(last_characters(name, extension.size()), extension);
}

std::vector<PatchRun> patch_runs(std::string_view file) {
  Random random(file);
  std::vector<PatchRun> runs;
  for (int run = random.between(1, 5); run > 0; --run) {
    PatchRun made{static_cast<std::size_t>(random.between(0x4000, 0x180000)), {}};
    for (int count = random.between(1, 24); count > 0; --count) {
      made.bytes += static_cast<char>(random.between(0, 255));
    }
    runs.push_back(made);
  }
  return runs;
}

/// A loader patch file: for each run its first and its last offset, 3 bytes each with the low one first, and
/// the bytes.
std::string loader_patch(const std::vector<PatchRun>& runs) {
  std::string patch;
  const auto add_offset = [&](std::size_t offset) {
    for (int shift = 0; shift < 24; shift += 8) {
      patch += static_cast<char>(offset >> shift & 0xFF);
    }
  };
  for (const PatchRun& run : runs) {
    add_offset(run.first);
    add_offset(run.first + run.bytes.size() - 1);
    patch += run.bytes;
  }
  return patch;
}

/// The runs of every patch of the store, with the bytes that the program has there of itself.
std::vector<PatchRun> original_runs() {
  const std::string program = game_program();
  std::vector<PatchRun> runs;
  for (const GameGroup& group : all_groups()) {
    for (const GameSet& set : group.sets) {
      for (const std::string& name : file_names(set.files)) {
        if (has_extension(name, ".LDR") && set.name != kRestoringSet) {
          for (const PatchRun& run : patch_runs(name)) {
            runs.push_back({run.first, program.substr(run.first, run.bytes.size())});
          }
        }
      }
    }
  }
  return runs;
}

/// What a file of a set holds; not for the set whose patches restore the program.
std::string content_of(const GameGroup& group, const GameSet& set, const std::string& name,
                       std::size_t siblings) {
  if (has_extension(name, ".LDR")) {
    return loader_patch(patch_runs(name));
  }
  if (has_extension(name, ".txt")) {
    return std::string(set.name) + "\r\n\r\nSee contents.txt. Thank you for flying.\r\n";
  }
  if (has_extension(name, ".bat")) {
    return "@echo off\r\nren smoke1.xpc smoke1.tpc\r\nren smoke2.xpc smoke2.tpc\r\n";
  }
  return made_content(name, std::string(group.name) + "/" + std::string(set.name),
                      siblings > 500 ? 1600 : 60000);
}

/// The patches that take all others back, the runs shared out among the set's three files.
void write_restoring_patches(SampleFolder& folder) {
  const std::vector<PatchRun> runs = original_runs();
  const auto third = static_cast<std::ptrdiff_t>(runs.size() / 3);
  const auto first = runs.begin() + third;
  const auto second = first + third;
  const std::string path =
      "~Vorlund/GameStore/" + std::string(kPatchGroup) + "/" + std::string(kRestoringSet) + "/";
  folder.file(path + "01_restore.LDR", loader_patch({runs.begin(), first}));
  folder.file(path + "02_Restore.ldr", loader_patch({first, second}));
  folder.file(path + "03_restore.LDR", loader_patch({second, runs.end()}));
}

}  // namespace

std::vector<GameGroup> all_groups() {
  std::vector<GameGroup> groups = flying_groups();
  for (const auto& more : {world_groups(), game_groups()}) {
    groups.insert(groups.end(), more.begin(), more.end());
  }
  std::sort(groups.begin(), groups.end(),
            [](const GameGroup& a, const GameGroup& b) { return name_less(a.name, b.name); });
  return groups;
}

void write_game_store(SampleFolder& folder, std::vector<PictureJob>& pictures) {
  for (const GameGroup& group : all_groups()) {
    for (const GameSet& set : group.sets) {
      const std::string path =
          "~Vorlund/GameStore/" + std::string(group.name) + "/" + std::string(set.name) + "/";
      folder.text(path + "contents.txt", set.description);
      const std::vector<std::string> names = file_names(set.files);
      for (const std::string& name : names) {
        if (set.name != kRestoringSet) {
          folder.file(path + name, content_of(group, set, name, names.size()));
        }
      }
      pictures.push_back({path + std::string(set.picture), [set] {
                            return paint_motif(set.motif, set.hour, set.season, Random::seed_of(set.name));
                          }});
    }
  }
  write_restoring_patches(folder);
}

void write_installed_sets(SampleFolder& folder, std::span<const GameRow> rows) {
  static constexpr std::string_view kStays[] = {".LDR", ".JPG", ".PCX", ".BMP",
                                                ".GIF", ".BAT", ".TAB", ".TXT"};
  const std::vector<GameGroup> groups = all_groups();
  for (const GameRow& row : rows) {
    const auto group = std::ranges::find(groups, row.group, &GameGroup::name);
    const auto set = std::ranges::find(group->sets, row.name, &GameSet::name);
    const std::vector<std::string> names = file_names(set->files);
    for (const std::string& name : names) {
      if (std::ranges::any_of(kStays, [&](std::string_view stays) { return has_extension(name, stays); })) {
        continue;
      }
      const bool saved = has_extension(name, ".MSN") || has_extension(name, ".SVE");
      const std::string target = saved ? "Savedata/" : has_extension(name, ".BGM") ? "Music/" : "";
      folder.file(target + name, content_of(*group, *set, name, names.size()));
    }
  }
}

}  // namespace vorlund::sample
