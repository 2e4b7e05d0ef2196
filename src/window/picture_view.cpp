// Decoding and painting of pictures.
#include "window/picture_view.h"

#include <QBuffer>
#include <QImageReader>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "window/action_label.h"
#include "window/theme.h"

namespace vorlund {

namespace {

constexpr int kLargestImageMegabytes = 400;

/// So many pixels are decoded at most. A decoder that can scale leaves most of them out, but looks at each
/// block of them, also where the file only claims to have so many.
constexpr double kMostPixels = 64e6;
constexpr double kScalersMostPixels = 16 * kMostPixels;

/// Reads a picture's bytes where they lie.
class Decoder {
 public:
  explicit Decoder(const std::string& bytes)
      : bytes_(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()))),
        buffer_(&bytes_) {
    reader_.setDevice(&buffer_);
    reader_.setDecideFormatFromContent(true);
    reader_.setAutoTransform(true);
    QImageReader::setAllocationLimit(kLargestImageMegabytes);
  }

  QImageReader& reader() { return reader_; }
  [[nodiscard]] bool scales() const { return reader_.supportsOption(QImageIOHandler::ScaledSize); }

  [[nodiscard]] bool is_too_large() const {
    const QSizeF size = reader_.size();
    return size.isValid() && size.width() * size.height() > (scales() ? kScalersMostPixels : kMostPixels);
  }

 private:
  QByteArray bytes_;
  QBuffer buffer_;
  QImageReader reader_;
};

QImage decode(const PictureFile& file, const QSize& size, PictureFit fit) {
  if (!file.bytes || size.isEmpty()) return {};
  Decoder decoder(*file.bytes);
  if (decoder.is_too_large()) return {};
  QImageReader& reader = decoder.reader();
  const Qt::AspectRatioMode mode =
      fit == PictureFit::kCover ? Qt::KeepAspectRatioByExpanding : Qt::KeepAspectRatio;
  const QSize natural = reader.size();
  const QSize wanted = natural.scaled(size, mode).expandedTo(QSize(1, 1));
  const bool smaller = natural.isValid() && wanted.width() < natural.width();
  if (smaller && decoder.scales()) reader.setScaledSize(wanted);
  QImage image = reader.read();
  if (image.isNull()) return image;
  // Smooth scaling looks at every pixel; of a picture far larger than shown, four samples for each shown
  // pixel do.
  if (image.width() > 4 * wanted.width()) image = image.scaled(2 * wanted);
  return image.scaled(size, mode, Qt::SmoothTransformation);
}

}  // namespace

QString why_undecodable(const PictureFile& file) {
  if (!file.bytes) return {};
  Decoder decoder(*file.bytes);
  if (!decoder.is_too_large()) return {};
  const QSize size = decoder.reader().size();
  return QStringLiteral("The picture is too large to be shown: %1 x %2 pixels")
      .arg(size.width())
      .arg(size.height());
}

QPixmap decode_picture(const Picture& picture, const QSize& size, PictureFit fit) {
  QImage image = decode(picture.picture, size, fit);
  if (image.isNull()) image = decode(picture.fallback, size, fit);
  return QPixmap::fromImage(image);
}

PictureView::PictureView(const QString& name, PictureFit fit, QWidget* parent) : QWidget(parent), fit_(fit) {
  setObjectName(name);
  setFocusPolicy(Qt::StrongFocus);
}

void PictureView::apply(const Picture& picture) {
  const bool same =
      picture.picture.bytes == picture_.picture.bytes && picture.fallback.bytes == picture_.fallback.bytes;
  if (picture.bordered != picture_.bordered) update();
  picture_ = picture;
  if (!same) {
    shown_for_ = QSize();
    update();
  }
  setVisible(picture.visible);
}

void PictureView::paintEvent(QPaintEvent*) {
  const QSize device = (QSizeF(size()) * devicePixelRatioF()).toSize();
  if (shown_for_ != device) {
    shown_ = decode_picture(picture_, device, fit_);
    shown_.setDevicePixelRatio(devicePixelRatioF());
    shown_for_ = device;
  }
  QPainter painter(this);
  QRectF drawn = rect();
  if (!shown_.isNull()) {
    const QSizeF size = shown_.deviceIndependentSize();
    drawn = QRectF(QPointF((width() - size.width()) / 2, (height() - size.height()) / 2), size);
    painter.drawPixmap(drawn.topLeft(), shown_);
  }
  if (picture_.bordered) {
    painter.setPen(theme::kEdge);
    painter.drawRect(drawn.adjusted(0.5, 0.5, -0.5, -0.5));
  }
  if (hasFocus()) theme::draw_plate(painter, rect(), QColor(0, 0, 0, 0), theme::kAccent);
}

void PictureView::mousePressEvent(QMouseEvent* event) {
  pressed_ = event->button() == Qt::LeftButton;
  known_ = true;
}

void PictureView::mouseReleaseEvent(QMouseEvent* event) {
  const bool click = pressed_ && rect().contains(event->position().toPoint());
  pressed_ = false;
  if (click && on_click) on_click();
}

void PictureView::mouseDoubleClickEvent(QMouseEvent*) {
  // The second press of a double click on what opened this picture is no click on it.
  pressed_ = false;
  if (!known_ && on_second_press) on_second_press();
  known_ = true;
}

void PictureView::showEvent(QShowEvent* event) {
  known_ = false;
  QWidget::showEvent(event);
}

void PictureView::keyPressEvent(QKeyEvent* event) {
  if (activates(*event) && on_click) {
    on_click();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace vorlund
