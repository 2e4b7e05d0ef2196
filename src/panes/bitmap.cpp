// The layout of a bitmap: a file header of 14 bytes, an information header of at least 40 that begins with
// its own size, masks and palette, then the rows, each filled up to a multiple of four bytes.
#include "bitmap.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace vorlund {

namespace {

constexpr std::uint64_t kEnough = 2000;  ///< pixels of the longer side

constexpr std::size_t kHeaders = 54;
constexpr std::size_t kLargestHeaders = 64 << 10;
constexpr std::size_t kFileSize = 2;
constexpr std::size_t kRowsBegin = 10;
constexpr std::size_t kInformationSize = 14;
constexpr std::size_t kWidth = 18;
constexpr std::size_t kHeight = 22;  ///< negative where the rows run from the top
constexpr std::size_t kBitsOfPixel = 28;
constexpr std::size_t kCompression = 30;
constexpr std::size_t kImageSize = 34;

constexpr std::uint32_t kPlain = 0;
constexpr std::uint32_t kMasks = 3;  ///< as plain, with masks for the colours behind the header

std::uint32_t number_at(const std::string& bytes, std::size_t at, std::size_t size = 4) {
  std::uint32_t number = 0;
  for (std::size_t byte = size; byte-- > 0;)
    number = (number << 8) | static_cast<unsigned char>(bytes[at + byte]);
  return number;
}

void put_number(std::string& bytes, std::size_t at, std::uint32_t number) {
  for (std::size_t byte = 0; byte < 4; ++byte) bytes[at + byte] = static_cast<char>(number >> (8 * byte));
}

std::uint64_t row_size(std::uint64_t pixels, std::uint64_t pixel_size) {
  return (pixels * pixel_size + 3) / 4 * 4;
}

bool read_whole(FileReader& file, std::string& bytes) {
  return file.read(bytes.data(), bytes.size()) == bytes.size();
}

}  // namespace

std::string thinned_bitmap(FileReader& file) {
  std::string thinned(kHeaders, '\0');
  if (!read_whole(file, thinned) || !thinned.starts_with("BM")) return {};
  const std::uint32_t bits = number_at(thinned, kBitsOfPixel, 2);
  const std::uint32_t compression = number_at(thinned, kCompression);
  const bool whole_bytes = bits == 8 || bits == 16 || bits == 24 || bits == 32;
  const bool readable = compression == kPlain || compression == kMasks;
  if (!whole_bytes || !readable || number_at(thinned, kInformationSize) < kHeaders - kInformationSize)
    return {};

  const auto width = static_cast<std::int32_t>(number_at(thinned, kWidth));
  const auto height = static_cast<std::int32_t>(number_at(thinned, kHeight));
  if (width <= 0 || height == 0) return {};
  const auto columns = static_cast<std::uint64_t>(width);
  const auto rows = static_cast<std::uint64_t>(std::abs(std::int64_t{height}));
  const std::uint64_t step = std::max(columns, rows) / kEnough;
  const std::uint64_t begin = number_at(thinned, kRowsBegin);
  const std::uint64_t pixel = bits / 8;
  std::string row(row_size(columns, pixel) <= file.size() ? row_size(columns, pixel) : 0, '\0');
  const bool ends_too_early = row.empty() || begin + rows * row.size() > file.size();
  if (step < 2 || begin < kHeaders || begin > kLargestHeaders || ends_too_early) return {};

  const std::uint64_t thin_columns = (columns + step - 1) / step;
  const std::uint64_t thin_rows = (rows + step - 1) / step;
  const std::uint64_t thin_row = row_size(thin_columns, pixel);
  thinned.resize(begin);
  file.seek(0);
  if (!read_whole(file, thinned)) return {};
  thinned.resize(begin + thin_rows * thin_row);
  put_number(thinned, kFileSize, static_cast<std::uint32_t>(thinned.size()));
  put_number(thinned, kWidth, static_cast<std::uint32_t>(thin_columns));
  put_number(thinned, kHeight, static_cast<std::uint32_t>(height < 0 ? 0 - thin_rows : thin_rows));
  put_number(thinned, kImageSize, static_cast<std::uint32_t>(thin_rows * thin_row));
  for (std::uint64_t taken = 0; taken < thin_rows; ++taken) {
    file.seek(begin + taken * step * row.size());
    if (!read_whole(file, row)) return {};
    char* out = thinned.data() + begin + taken * thin_row;
    for (std::uint64_t column = 0; column < columns; column += step)
      out = std::copy_n(row.data() + column * pixel, pixel, out);
  }
  return thinned;
}

}  // namespace vorlund
