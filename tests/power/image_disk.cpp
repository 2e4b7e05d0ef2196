// Makes and mounts image files with the system's own commands.
#include "power/image_disk.h"

#include <sys/mount.h>

#include <cstdlib>
#include <filesystem>
#include <ostream>
#include <stdexcept>
#include <utility>

namespace vorlund::test {

namespace {

std::string in_quotes(const std::string& path) {
  return "'" + path + "'";
}

bool runs(const std::string& command) {
  return std::system((command + " >/dev/null 2>&1").c_str()) == 0;
}

}  // namespace

void PrintTo(const DiskKind& kind, std::ostream* out) {
  *out << kind.name;
}

ImageDisk::ImageDisk(const DiskKind& kind, std::string image) : kind_(kind), image_(std::move(image)) {}

ImageDisk::~ImageDisk() {
  if (!folder_.empty()) ::umount2(folder_.c_str(), MNT_DETACH);
}

bool ImageDisk::make() const {
  const std::string name = kind_.name;
  return runs("truncate -s " + std::string(kind_.size) + " " + in_quotes(image_)) &&
         runs("mkfs." + name + " -q " + (name == "ext4" ? "-F " : "") + in_quotes(image_));
}

bool ImageDisk::mount(const std::string& folder) {
  if (!runs("mount -t " + std::string(kind_.name) + " -o loop," + kind_.options + " " + in_quotes(image_) +
            " " + in_quotes(folder))) {
    return false;
  }
  folder_ = folder;
  std::error_code ignored;
  std::filesystem::remove(std::filesystem::path(folder) / "lost+found", ignored);
  return true;
}

void ImageDisk::unmount() {
  if (::umount2(std::exchange(folder_, "").c_str(), 0) != 0) {
    throw std::runtime_error("cannot unmount " + image_);
  }
}

void ImageDisk::copy_to(const ImageDisk& other) const {
  if (!runs("cp --sparse=always " + in_quotes(image_) + " " + in_quotes(other.image_))) {
    throw std::runtime_error("cannot copy " + image_);
  }
}

}  // namespace vorlund::test
