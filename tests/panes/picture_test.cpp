// Reading picture files for the window.
#include "panes/picture.h"

#include <gtest/gtest.h>

#include <string>

#include "support/temporary_folder.h"

namespace vorlund {
namespace {

using namespace std::string_literals;

TEST(Picture, AFileIsReadWholeWhateverItsName) {
  const test::TemporaryFolder folder;
  folder.write("mypic", "GIF89a not really");
  const auto files = make_platform_file_system();
  const PictureFile picture = load_picture(*files, folder.path("MyPic"));
  ASSERT_TRUE(picture.bytes);
  EXPECT_EQ(*picture.bytes, "GIF89a not really");
  EXPECT_EQ(picture.path, folder.path("MyPic"));
}

TEST(Picture, WhatIsNotAFileGivesNoPicture) {
  const test::TemporaryFolder folder;
  folder.make_folder("folder");
  const auto files = make_platform_file_system();
  for (const char* name : {"nothing", "folder", "nothing\\below"}) {
    const PictureFile picture = load_picture(*files, folder.path(name));
    EXPECT_FALSE(picture.bytes) << name;
    EXPECT_EQ(picture.path, "") << name;
  }
}

/// A bitmap: its headers up to the rows, with eight bytes of palette, and the rows.
struct Bitmap {
  std::string width;
  std::string height;
  char bits = 24;
  char compression = 0;
  std::string rows = {};
  std::string file_size = "\xAA\xAA\xAA\xAA";
  std::string image_size = "\xBB\xBB\xBB\xBB";
  char headers_end = 62;

  std::string bytes() const {
    return "BM" + file_size + "\0\0\0\0"s + headers_end + "\0\0\0"s + "\x28\0\0\0"s + width + height +
           "\1\0"s + bits + "\0"s + compression + "\0\0\0"s + image_size + std::string(16, '\x11') +
           "palette." + rows;
  }
};

/// What is read of a file with these bytes.
std::string read_of(const std::string& bytes) {
  const test::TemporaryFolder folder;
  folder.write("picture", bytes);
  const auto files = make_platform_file_system();
  const PictureFile picture = load_picture(*files, folder.path("picture"));
  return picture.bytes ? *picture.bytes : "none";
}

// Of 8,195 pixels in a row every fourth makes 2,049.
TEST(Picture, OfAHugeBitmapEveryNthPixelOfEveryNthRowIsRead) {
  Bitmap huge{.width = "\x03\x20\0\0"s, .height = "\6\0\0\0"s};
  Bitmap thinned{.width = "\x01\x08\0\0"s, .height = "\2\0\0\0"s};
  thinned.file_size = "\x46\x30\0\0"s;
  thinned.image_size = "\x08\x30\0\0"s;
  for (int row = 0; row < 6; ++row) {
    for (int column = 0; column < 8195; ++column) {
      const std::string pixel = {static_cast<char>(column), static_cast<char>(column / 256),
                                 static_cast<char>(row)};
      huge.rows += pixel;
      if (row % 4 == 0 && column % 4 == 0) thinned.rows += pixel;
    }
    huge.rows += "***";
    if (row % 4 == 0) thinned.rows += '\0';
  }
  EXPECT_EQ(read_of(huge.bytes()), thinned.bytes());
}

TEST(Picture, ABitmapMayRunFromTheTopAndHaveOtherPixels) {
  for (const char bits : {'\x08', '\x10', '\x20'}) {
    const std::size_t row = bits == 32 ? 8 : 4;
    Bitmap huge{.width = "\2\0\0\0"s, .height = "\0\xF0\xFF\xFF"s, .bits = bits, .compression = 3};
    huge.rows = std::string(4096 * row, 'r');
    Bitmap thinned{.width = "\1\0\0\0"s, .height = "\0\xF8\xFF\xFF"s, .bits = bits, .compression = 3};
    thinned.file_size = "\x3E\x20\0\0"s;
    thinned.image_size = "\0\x20\0\0"s;
    const std::size_t pixel = static_cast<std::size_t>(bits) / 8;
    for (int each = 0; each < 2048; ++each)
      thinned.rows += std::string(pixel, 'r') + std::string(4 - pixel, '\0');
    EXPECT_EQ(read_of(huge.bytes()), thinned.bytes()) << int{bits};
  }
}

TEST(Picture, EveryOtherFileIsReadWhole) {
  const Bitmap huge{
      .width = "\xA0\x0F\0\0"s, .height = "\1\0\0\0"s, .bits = 8, .rows = std::string(4000, 'r')};
  ASSERT_NE(read_of(huge.bytes()), huge.bytes());
  const auto with = [&huge](const auto& change) {
    Bitmap other = huge;
    change(other);
    return other.bytes();
  };
  const std::string whole[] = {
      "",
      "BM",
      "PM" + huge.bytes().substr(2),
      with([](Bitmap& one) { one.width = "\x9F\x0F\0\0"s; }),
      with([](Bitmap& one) { one.width = "\0\0\0\x80"s; }),
      with([](Bitmap& one) { one.height = "\0\0\0\0"s; }),
      with([](Bitmap& one) { one.height = "\2\0\0\0"s; }),
      with([](Bitmap& one) { one.height = "\0\0\0\x80"s; }),
      with([](Bitmap& one) { one.width = one.height = "\xFF\xFF\xFF\x7F"s; }),
      with([](Bitmap& one) { one.bits = 4; }),
      with([](Bitmap& one) { one.compression = 1; }),
      with([](Bitmap& one) { one.headers_end = 53; }),
      with([](Bitmap& one) { one.rows.pop_back(); }),
      huge.bytes().replace(14, 1, 1, '\x27'),
      huge.bytes().replace(12, 1, 1, '\2') + std::string(1 << 18, 'r'),
  };
  for (const std::string& bytes : whole) EXPECT_EQ(read_of(bytes), bytes) << &bytes - whole;
}

}  // namespace
}  // namespace vorlund
