// Reads picture files through the one door to the disk.
#include "panes/picture.h"

#include <utility>

#include "bitmap.h"
#include "disk/listing.h"
#include "disk/store.h"

namespace vorlund {

PictureFile load_picture(FileSystem& files, std::string_view path) {
  constexpr std::uint64_t kLargest = 256ULL << 20;
  if (!files.FileExists(path)) return {};
  const std::unique_ptr<FileReader> file = files.open_file(path);
  if (file->size() > kLargest) return {};
  std::string bytes = thinned_bitmap(*file);
  if (bytes.empty()) {
    file->seek(0);
    bytes = read_rest(*file, path);
  }
  return {std::string(path), std::make_shared<const std::string>(std::move(bytes))};
}

PictureFile first_picture(FileSystem& files, const std::string& folder) {
  const std::vector<std::string> pictures = list_files(files, folder, kPicturePattern);
  if (pictures.empty()) return {};
  return load_picture(files, folder + "\\" + pictures.front());
}

}  // namespace vorlund
