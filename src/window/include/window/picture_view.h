// Shows a picture control: decodes the picture at the size it is shown and keeps its shape.
#pragma once

#include <QPixmap>
#include <QWidget>
#include <functional>

#include "panes/picture.h"

namespace vorlund {

/// How a picture fills the area it is shown in.
enum class PictureFit {
  kWhole,  ///< all of it is seen, centred
  kCover,  ///< it covers the area, cut where its shape differs
};

/// The picture as it is shown in `size` pixels: `picture`, else `fallback` where the former is none or can't
/// be decoded, else null. Decoded no larger than needed. A picture of more than 64 million pixels counts as
/// one that can't be decoded, and of 64 times as many where its decoder can leave out what is not shown.
QPixmap decode_picture(const Picture& picture, const QSize& size, PictureFit fit);

/// Why a picture is not decoded, in plain words, "" where it is tried.
QString why_undecodable(const PictureFile& file);

/// A widget for one Picture of the model; a click is handed back.
class PictureView : public QWidget {
 public:
  PictureView(const QString& name, PictureFit fit, QWidget* parent);

  std::function<void()> on_click;
  /// The second press of a double click whose first one brought the picture under the pointer.
  std::function<void()> on_second_press;

  void apply(const Picture& picture);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  PictureFit fit_;
  Picture picture_;
  QPixmap shown_;
  QSize shown_for_;
  bool pressed_ = false;
  bool known_ = false;  ///< it was pressed since it is shown
};

}  // namespace vorlund
