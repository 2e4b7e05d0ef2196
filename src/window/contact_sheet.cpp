// Lays the tiles out, paints them, and decodes the pictures of those that are seen.
#include "window/contact_sheet.h"

#include <QElapsedTimer>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTextOption>
#include <QToolTip>

#include "base/action_error.h"
#include "panes/picture.h"
#include "window/picture_view.h"
#include "window/theme.h"

namespace vorlund {

namespace {

constexpr int kMargin = 5;
constexpr int kKibibytesKept = 24 * 1024;
constexpr int kMillisecondsAtATime = 8;
constexpr int kMillisecondsAfterScrolling = 60;

/// The name in up to two lines, the second one elided.
QStringList in_two_lines(const QString& name, const QFontMetrics& metrics, int width) {
  if (metrics.horizontalAdvance(name) <= width) return {name};
  qsizetype end = name.size();
  for (qsizetype blank = name.indexOf(' '); blank > 0; blank = name.indexOf(' ', blank + 1)) {
    if (end != name.size() && metrics.horizontalAdvance(name.left(blank)) > width) break;
    end = blank;
  }
  if (end == name.size() || metrics.horizontalAdvance(name.left(end)) > width) {
    return {metrics.elidedText(name, Qt::ElideMiddle, width)};
  }
  return {name.left(end), metrics.elidedText(name.mid(end + 1), Qt::ElideMiddle, width)};
}

class TileDelegate : public QStyledItemDelegate {
 public:
  explicit TileDelegate(ContactSheet& sheet) : QStyledItemDelegate(&sheet), sheet_(sheet) {}

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
    return sheet_.tile_size();
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& row) const override {
    const bool marked = row.data(EntryModel::kMarkedRole).toBool();
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const bool framed = sheet_.hasFocus() && row == sheet_.currentIndex();
    const bool lit = option.state.testFlag(QStyle::State_MouseOver);
    const QRect plate = option.rect.adjusted(kMargin, kMargin, -kMargin, -kMargin);
    theme::draw_plate(*painter, plate, selected || lit ? theme::kPlateHover : theme::kPlate,
                      framed ? theme::kAccent : theme::kPlateEdge);
    const QRect picture(plate.topLeft() + QPoint(1, 1), sheet_.picture_size());
    const Tile* tile = sheet_.tile(row);
    QFont font = option.font;
    font.setBold(marked);
    painter->setFont(font);
    painter->setPen(marked ? row.data(Qt::ForegroundRole).value<QColor>() : theme::kText);
    const QRect room = plate.adjusted(kMargin, 0, -kMargin, -kMargin);
    if (tile != nullptr && tile->picture.isNull()) return paint_plate(painter, room, row);
    if (tile != nullptr) {
      const QSizeF size = tile->picture.deviceIndependentSize();
      painter->drawPixmap(QRectF(picture).center() - QPointF(size.width(), size.height()) / 2, tile->picture);
    }
    const QRect name(room.left(), picture.bottom() + 1, room.width(), room.bottom() - picture.bottom());
    painter->drawText(name, Qt::AlignCenter,
                      in_two_lines(row.data().toString(), painter->fontMetrics(), name.width()).join('\n'));
  }

 private:
  /// The name alone, as large as a picture.
  static void paint_plate(QPainter* painter, const QRect& room, const QModelIndex& row) {
    painter->setClipRect(room);
    QTextOption words(Qt::AlignCenter);
    words.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    painter->drawText(QRectF(room), row.data().toString(), words);
    painter->setClipping(false);
  }

  ContactSheet& sheet_;
};

}  // namespace

ContactSheet::ContactSheet(const QString& name, const QString& caption, const std::vector<std::string>& texts,
                           const Finder& finder, FileSystem& files, std::function<std::string(int)> folder_of,
                           QWidget* parent)
    : ListView(name, caption, texts, finder, parent, Kind::kLabels),
      files_(files),
      folder_of_(std::move(folder_of)) {
  set_up();
}

ContactSheet::ContactSheet(const QString& name, const QString& caption, const std::vector<Label>& labels,
                           const Finder& finder, FileSystem& files, std::function<std::string(int)> folder_of,
                           QWidget* parent)
    : ListView(name, caption, labels, finder, parent), files_(files), folder_of_(std::move(folder_of)) {
  set_up();
}

void ContactSheet::set_up() {
  tiles_.setMaxCost(kKibibytesKept);
  show_typed_when_focused();
  setItemDelegate(new TileDelegate(*this));
  setFlow(LeftToRight);
  setWrapping(true);
  setResizeMode(Adjust);
  stand_on_picture();
  decoding_.setSingleShot(true);
  connect(&decoding_, &QTimer::timeout, this, [this] { decode_some(); });
  share_width();
}

void ContactSheet::set_least_width(int pixels) {
  least_width_ = pixels;
  share_width();
}

/// Divides the width among as many tiles as it has room for. The scroll bar has its room also while it is not
/// there: otherwise it would come and go with the size of the tiles.
void ContactSheet::share_width() {
  const int room = std::max(width() - verticalScrollBar()->sizeHint().width() - 1, least_width_);
  const int width = room / (room / least_width_);
  const int picture = width - 2 * kMargin - 2;
  const QSize size(width, picture * 3 / 4 + 2 * kMargin + 2 * fontMetrics().lineSpacing() + 8);
  verticalScrollBar()->setSingleStep(size.height() / 3);
  if (size == tile_size_) return;
  tile_size_ = size;
  forget_pictures();
  scheduleDelayedItemsLayout();
}

QSize ContactSheet::picture_size() const {
  const int width = tile_size_.width() - 2 * kMargin - 2;
  return {width, width * 3 / 4};
}

QString ContactSheet::key(const QModelIndex& row) const {
  return QString::fromStdString(folder_of_(entries().entry(row)));
}

const Tile* ContactSheet::tile(const QModelIndex& row) const {
  return tiles_.object(key(row));
}

void ContactSheet::paintEvent(QPaintEvent* event) {
  ListView::paintEvent(event);
  if (!decoding_.isActive() && first_undecoded().isValid()) decoding_.start(0);
}

QModelIndex ContactSheet::first_undecoded() const {
  const QRect seen = viewport()->rect();
  QModelIndex row = indexAt(seen.topLeft() + QPoint(least_width_ / 2, 1));
  for (; row.isValid() && visualRect(row).intersects(seen); row = row.siblingAtRow(row.row() + 1)) {
    if (tile(row) == nullptr) return row;
  }
  return {};
}

void ContactSheet::decode_some() {
  if (window()->property(theme::kWorkingProperty).toBool()) return;
  QElapsedTimer time;
  time.start();
  do {
    const QModelIndex row = isVisible() ? first_undecoded() : QModelIndex();
    if (!row.isValid()) return;
    auto* tile = new Tile(decode(folder_of_(entries().entry(row))));
    const int kibibytes = tile->picture.width() * tile->picture.height() / 256 + 1;
    tiles_.insert(key(row), tile, kibibytes);
    viewport()->update(visualRect(row));
  } while (time.elapsed() < kMillisecondsAtATime);
  decoding_.start(0);
}

Tile ContactSheet::decode(const std::string& folder) const {
  if (folder.empty()) return {};
  try {
    const Picture picture{first_picture(files_, folder), {}};
    const double scale = devicePixelRatioF();
    Tile tile{decode_picture(picture, (QSizeF(picture_size()) * scale).toSize(), PictureFit::kWhole),
              why_undecodable(picture.picture)};
    tile.picture.setDevicePixelRatio(scale);
    return tile;
  } catch (const ActionError& error) {
    // A look that nobody asked for ends no program: whoever opens the folder is told.
    return {{}, QString::fromUtf8(error.what())};
  }
}

bool ContactSheet::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    const QModelIndex row = indexAt(help->pos());
    const Tile* shown = row.isValid() ? tile(row) : nullptr;
    if (shown != nullptr && !shown->why.isEmpty()) {
      const QString words = row.data().toString() + "\n" + shown->why;
      QToolTip::showText(help->globalPos(), theme::literal(words), viewport(), visualRect(row));
      return true;
    }
  }
  return ListView::viewportEvent(event);
}

void ContactSheet::resizeEvent(QResizeEvent* event) {
  share_width();
  ListView::resizeEvent(event);
}

void ContactSheet::scrollContentsBy(int dx, int dy) {
  ListView::scrollContentsBy(dx, dy);
  decoding_.start(kMillisecondsAfterScrolling);
}

void ContactSheet::mousePressEvent(QMouseEvent* event) {
  ListView::mousePressEvent(event);
  event->accept();  // beside a tile is no wish to hide the pane
}

}  // namespace vorlund
