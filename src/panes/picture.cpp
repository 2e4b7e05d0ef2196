// Reads picture files through the one door to the disk.
#include "panes/picture.h"

namespace vorlund {

PictureFile load_picture(FileSystem& files, std::string_view path) {
  constexpr std::uint64_t kLargest = 256ULL << 20;
  if (!files.FileExists(path) || files.open_file(path)->size() > kLargest) return {};
  return {std::string(path), std::make_shared<const std::string>(files.read_file(path))};
}

}  // namespace vorlund
