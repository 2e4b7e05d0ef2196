// Reads loader patch records and writes them into the executable.
#include "gamesets/loader_patch.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string>

#include "disk/store.h"

namespace vorlund {

namespace {

constexpr std::size_t kRecordHeader = 6;
constexpr std::size_t kBlock = 64 << 10;

std::size_t three_byte_number(const char* bytes) {
  const auto byte = [bytes](std::size_t index) {
    return static_cast<std::size_t>(static_cast<unsigned char>(bytes[index]));
  };
  return byte(0) + 256 * byte(1) + 65536 * byte(2);
}

}  // namespace

void apply_loader_patch(FileReader& patch, Status& status, PatchedBytes& executable) {
  std::array<char, kRecordHeader> header{};
  std::string run;
  while (patch.read(header.data(), header.size()) == header.size()) {
    const std::size_t first = three_byte_number(header.data());
    const std::size_t last = three_byte_number(header.data() + 3);
    const std::size_t length = last < first ? 0 : last - first + 1;
    run.clear();
    // Block by block: a file that claims more than it holds takes no memory for what is not there.
    while (run.size() < length) {
      const std::size_t done = run.size();
      run.resize(std::min(length, done + kBlock));
      const std::size_t got = patch.read(run.data() + done, run.size() - done);
      if (got < run.size() - done) return;
    }
    executable.put(first, run);
    status.patched(first, run);
  }
}

void install_loader_patch(const GameFolder& game, Status& status, std::string_view patch_path) {
  const std::unique_ptr<FileReader> patch = game.files.open_file(patch_path);
  PatchedFile executable(game.files, game.path(kGameProgram));
  executable.patch([&] {
    PatchedBytes& bytes = executable.open();
    try {
      apply_loader_patch(*patch, status, bytes);
    } catch (...) {
      bytes.revert();  // a patch that can't be read to its end is not applied at all
      throw;
    }
  });
}

}  // namespace vorlund
