// Disks of several kinds in image files, which can be copied as they stand while they are in use.
#pragma once

#include <iosfwd>
#include <string>

namespace vorlund::test {

/// A kind of disk that the tests know.
struct DiskKind {
  const char* name;     ///< as mkfs and mount know it
  const char* size;     ///< of the image, the smallest that will do
  const char* options;  ///< of mounting: nothing is written out sooner than it must be
};

/// For the reports of the tests.
void PrintTo(const DiskKind& kind, std::ostream* out);

/// An image file with a disk, mounted on a folder from `mount` to `unmount`.
class ImageDisk {
 public:
  /// `image` is the path of the image file.
  ImageDisk(const DiskKind& kind, std::string image);
  ~ImageDisk();
  ImageDisk(const ImageDisk&) = delete;
  ImageDisk& operator=(const ImageDisk&) = delete;

  /// Makes the image file and an empty disk in it. False where the tools for it are missing.
  bool make() const;

  /// False where that can't be done. A disk that was not unmounted is brought in order, as after a power cut.
  bool mount(const std::string& folder);

  /// Writes everything out.
  void unmount();

  /// Copies what has reached the image up to now: what was not written out is lost to the copy, as it would
  /// be in a power cut.
  void copy_to(const ImageDisk& other) const;

 private:
  DiskKind kind_;
  std::string image_;
  std::string folder_;  ///< it is mounted on, "" when it is not
};

}  // namespace vorlund::test
