// A picture control: the bytes of the picture files it shows, for the window to decode.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "disk/file_system.h"
#include "panes/controls.h"

namespace vorlund {

/// A picture file as read from the store. Its format is recognised by its content when it is shown.
struct PictureFile {
  std::string path;                          ///< "" for no picture
  std::shared_ptr<const std::string> bytes;  ///< null for no picture
};

/// A control that shows a picture (`Image1`, `Image3`, ...).
struct Picture {
  PictureFile picture;
  PictureFile fallback;  ///< shown where `picture` is none or can't be decoded
  bool visible = true;
  bool bordered = false;  ///< a single line runs round it
  Place place{};
};

/// Reads a picture file; one larger than 256 MiB, or one that is not there, gives no picture. A bitmap with
/// a side of 4,000 pixels or more is thinned out to at least 2,000, since it has no smaller size to be
/// decoded at.
PictureFile load_picture(FileSystem& files, std::string_view path);

/// The first picture file of a skin's or a game set's folder, by name; none where it has none.
PictureFile first_picture(FileSystem& files, const std::string& folder);

}  // namespace vorlund
