// A sheet of tiles: the picture of each folder of a list, or its name on a plate.
#pragma once

#include <QCache>
#include <QPixmap>
#include <QTimer>
#include <functional>
#include <string>

#include "disk/file_system.h"
#include "window/list_view.h"

namespace vorlund {

/// A tile as it is painted.
struct Tile {
  QPixmap picture;  ///< null where the folder has none that can be shown
  QString why;      ///< why its picture is not shown, "" for no reason
};

/// Shows the entries of a list as tiles. Only the pictures of tiles that are seen are read and decoded, at
/// the size of the tile, one after the other between events and never while an action runs; while the sheet
/// is scrolled they wait. Those seen last are kept.
class ContactSheet : public ListView {
 public:
  /// `folder_of` gives the folder of an entry, "" for none. Whatever is handed over outlives the sheet.
  ContactSheet(const QString& name, const QString& caption, const std::vector<std::string>& texts,
               const Finder& finder, FileSystem& files, std::function<std::string(int)> folder_of,
               QWidget* parent);
  ContactSheet(const QString& name, const QString& caption, const std::vector<Label>& labels,
               const Finder& finder, FileSystem& files, std::function<std::string(int)> folder_of,
               QWidget* parent);

  /// Makes tiles of at least this width in pixels; without it they are as wide as suits a whole pane.
  void set_least_width(int pixels);

  /// Gives the memory of all pictures back; those that are seen are read again.
  void forget_pictures() { tiles_.clear(); }

  /// The tile of a row, null while it is not decoded yet: it then will be.
  const Tile* tile(const QModelIndex& row) const;

  /// Pixels of a tile, and of the picture in it.
  QSize tile_size() const { return tile_size_; }
  QSize picture_size() const;

 protected:
  bool viewportEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void set_up();
  void share_width();
  void decode_some();
  QModelIndex first_undecoded() const;
  QString key(const QModelIndex& row) const;
  Tile decode(const std::string& folder) const;

  FileSystem& files_;
  std::function<std::string(int)> folder_of_;
  mutable QCache<QString, Tile> tiles_;
  QTimer decoding_;
  int least_width_ = 176;
  QSize tile_size_;
};

}  // namespace vorlund
