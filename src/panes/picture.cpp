// Reads picture files through the one door to the disk.
#include "panes/picture.h"

#include "disk/listing.h"
#include "disk/store.h"

namespace vorlund {

PictureFile load_picture(FileSystem& files, std::string_view path) {
  constexpr std::uint64_t kLargest = 256ULL << 20;
  if (!files.FileExists(path) || files.open_file(path)->size() > kLargest) return {};
  return {std::string(path), std::make_shared<const std::string>(files.read_file(path))};
}

PictureFile first_picture(FileSystem& files, const std::string& folder) {
  const std::vector<std::string> pictures = list_files(files, folder, kPicturePattern);
  return pictures.empty() ? PictureFile() : load_picture(files, folder + "\\" + pictures.front());
}

}  // namespace vorlund
