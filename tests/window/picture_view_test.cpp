// Pictures as the window shows them: of any format, in their shape, at the shown size, damaged ones replaced.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>

#include "window/picture_view.h"

namespace vorlund::test {
namespace {

const QColor kRed(200, 30, 40);
const QColor kBlue(30, 40, 200);

/// The bytes of a plain picture in a format of the window library.
PictureFile picture_file(const char* format, const QSize& size, const QColor& colour) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(colour);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  EXPECT_TRUE(image.save(&buffer, format, 100)) << format;
  return {"mypic", std::make_shared<const std::string>(bytes.toStdString())};
}

PictureFile damaged_file() {
  return {"mypic", std::make_shared<const std::string>("\xFF\xD8\xFF\xE0 no picture at all")};
}

/// The colour in the middle, the nearest multiple of 10 for what a jpg makes of it.
QColor middle_of(const QPixmap& pixmap) {
  const QColor colour = pixmap.toImage().pixelColor(pixmap.rect().center());
  const auto rounded = [](int part) { return (part + 5) / 10 * 10; };
  return {rounded(colour.red()), rounded(colour.green()), rounded(colour.blue())};
}

TEST(Pictures, OfEachFormatAreRecognisedByTheirContent) {
  for (const char* format : {"jpg", "bmp", "png"}) {
    const QPixmap shown =
        decode_picture({picture_file(format, {60, 40}, kRed), {}}, {30, 20}, PictureFit::kWhole);
    EXPECT_EQ(shown.size(), QSize(30, 20)) << format;
    EXPECT_EQ(middle_of(shown), kRed) << format;
  }
}

TEST(Pictures, KeepTheirShape) {
  const Picture wide{picture_file("bmp", {400, 100}, kRed), {}};
  EXPECT_EQ(decode_picture(wide, {200, 200}, PictureFit::kWhole).size(), QSize(200, 50));
  EXPECT_EQ(decode_picture(wide, {200, 200}, PictureFit::kCover).size(), QSize(800, 200));
  const Picture high{picture_file("jpg", {100, 400}, kRed), {}};
  EXPECT_EQ(decode_picture(high, {200, 200}, PictureFit::kWhole).size(), QSize(50, 200));
  const Picture small{picture_file("png", {4, 2}, kRed), {}};
  EXPECT_EQ(decode_picture(small, {200, 200}, PictureFit::kWhole).size(), QSize(200, 100));
}

TEST(Pictures, FarLargerThanShownAreShownWhole) {
  for (const char* format : {"jpg", "bmp"}) {
    const Picture large{picture_file(format, {8000, 4000}, kBlue), {}};
    const QPixmap shown = decode_picture(large, {400, 400}, PictureFit::kWhole);
    EXPECT_EQ(shown.size(), QSize(400, 200)) << format;
    EXPECT_EQ(middle_of(shown), kBlue) << format;
  }
}

TEST(Pictures, ThatAreDamagedOrMissingGiveWayToTheDefaultOne) {
  const PictureFile fallback = picture_file("png", {20, 20}, kBlue);
  for (const PictureFile& picture : {damaged_file(), PictureFile()}) {
    EXPECT_EQ(middle_of(decode_picture({picture, fallback}, {20, 20}, PictureFit::kWhole)), kBlue);
    EXPECT_TRUE(decode_picture({picture, damaged_file()}, {20, 20}, PictureFit::kWhole).isNull());
    EXPECT_TRUE(decode_picture({picture, {}}, {20, 20}, PictureFit::kWhole).isNull());
  }
}

/// A bitmap that says it is this large, each size given in its four bytes, and ends there.
PictureFile claimed_bitmap(const std::string& width, const std::string& height) {
  using namespace std::string_literals;
  const std::string rest = "\x01\0\x18\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"s;
  return {"mypic", std::make_shared<const std::string>("BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0"s + width +
                                                       height + rest)};
}

TEST(Pictures, TooLargeToBeDecodedSaySo) {
  using namespace std::string_literals;
  EXPECT_EQ(why_undecodable(claimed_bitmap("\x80\x3E\0\0"s, "\x80\x3E\0\0"s)),
            "The picture is too large to be shown: 16000 x 16000 pixels");
  EXPECT_EQ(why_undecodable(claimed_bitmap("\x40\x1F\0\0"s, "\x41\x1F\0\0"s)),
            "The picture is too large to be shown: 8000 x 8001 pixels");
  EXPECT_EQ(why_undecodable(claimed_bitmap("\x40\x1F\0\0"s, "\x40\x1F\0\0"s)), "") << "64 million pixels";
  EXPECT_EQ(why_undecodable(damaged_file()), "");
  EXPECT_EQ(why_undecodable({}), "");
}

TEST(Pictures, OfAFormatThatCanBeScaledMayBeLarger) {
  PictureFile file = picture_file("jpg", {80, 40}, kRed);
  std::string bytes = *file.bytes;
  const std::size_t size = bytes.find("\xFF\xC0") + 5;
  const auto why = [&](std::string_view height_and_width) {
    bytes.replace(size, 4, height_and_width);
    return why_undecodable({"mypic", std::make_shared<const std::string>(bytes)});
  };
  using namespace std::string_view_literals;
  EXPECT_EQ(why("\x7D\x00\x7D\x00"sv), "") << "32,000 x 32,000 pixels";
  EXPECT_EQ(why("\x7D\x00\x7D\x01"sv), "The picture is too large to be shown: 32001 x 32000 pixels");
  EXPECT_EQ(why("\xFF\xDC\xFF\xDC"sv), "The picture is too large to be shown: 65500 x 65500 pixels");
}

TEST(Pictures, ThatAreTooLargeGiveWayToTheDefaultOne) {
  const PictureFile fallback = picture_file("png", {20, 20}, kBlue);
  const PictureFile large = picture_file("bmp", {8000, 8001}, kRed);
  EXPECT_EQ(middle_of(decode_picture({large, fallback}, {20, 20}, PictureFit::kWhole)), kBlue);
}

TEST(Pictures, HaveABorderWhereOneIsAskedFor) {
  for (const bool bordered : {false, true}) {
    QWidget window;  // Windows gives one of its own a least width
    PictureView view("Image4", PictureFit::kWhole, &window);
    view.resize(40, 20);
    Picture picture{picture_file("png", {20, 20}, kRed), {}};
    view.apply(picture);
    view.grab();
    picture.bordered = bordered;
    view.apply(picture);
    const QImage shown = view.grab().toImage();
    EXPECT_EQ(shown.pixelColor(10, 10) == kRed, !bordered) << "the left edge of the picture";
    EXPECT_EQ(shown.pixelColor(20, 19) == kRed, !bordered) << "its lower edge";
    EXPECT_EQ(shown.pixelColor(11, 10), kRed);
  }
}

TEST(Pictures, OfAnEndlessShapeAreNoReasonToEnd) {
  const Picture line{picture_file("png", {3000, 1}, kRed), {}};
  EXPECT_EQ(decode_picture(line, {100, 100}, PictureFit::kWhole).size(), QSize(100, 1));
  EXPECT_TRUE(decode_picture(line, {}, PictureFit::kWhole).isNull());
}

}  // namespace
}  // namespace vorlund::test
