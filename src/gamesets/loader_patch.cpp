// Reads loader patch records and writes them into the executable.
#include "gamesets/loader_patch.h"

#include <cstdint>
#include <string>

#include "core/action_error.h"
#include "core/store.h"

namespace vorlund {

namespace {

constexpr std::size_t kRecordHeader = 6;

std::size_t offset_at(std::string_view patch, std::size_t position) {
  const auto byte = [&](std::size_t index) {
    return static_cast<std::size_t>(static_cast<unsigned char>(patch[position + index]));
  };
  return byte(0) + 256 * byte(1) + 65536 * byte(2);
}

}  // namespace

void apply_loader_patch(std::string_view patch, PatchedBytes& executable) {
  std::size_t position = 0;
  while (position + kRecordHeader <= patch.size()) {
    const std::size_t first = offset_at(patch, position);
    const std::size_t last = offset_at(patch, position + 3);
    const std::size_t length = last < first ? 0 : last - first + 1;
    const std::size_t data = position + kRecordHeader;
    if (data + length > patch.size()) return;
    executable.put(first, patch.substr(data, length));
    position = data + length;
  }
}

void install_loader_patch(Environment& environment, std::string_view patch_path) {
  constexpr std::uint64_t kLargest = 64ULL << 20;
  const std::uint64_t size = environment.files.file_size(patch_path);
  if (size > kLargest) {
    throw ActionError("apply the loader patch", patch_path,
                      "it holds " + std::to_string(size) + " bytes, more than a patch can use (64 MiB)");
  }
  const std::string patch = environment.files.read_file(patch_path);
  patch_file(environment.files, environment.game.path(kGameProgram),
             [&](PatchedBytes& executable) { apply_loader_patch(patch, executable); });
}

}  // namespace vorlund
