// The table model over a grid, and the view's mouse and keyboard.
#include "window/grid_view.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <algorithm>
#include <numeric>

#include "window/action_label.h"
#include "window/entry_delegate.h"
#include "window/theme.h"

namespace vorlund {

namespace {

constexpr int kPadding = 2 * EntryDelegate::kMargin + 3;  // of headers and cells, with the grid line
constexpr int kMeasuredRows = 200;
constexpr std::size_t kMeasuredBytes = 100;
constexpr int kLeastRows = 4;
constexpr auto kLongestShortValue = "MMMMMMMM";

}  // namespace

bool GridModel::refresh() {
  std::vector<int> shown;
  for (int row = 1; row < grid_.row_count(); ++row) {
    if (!grid_.is_hidden(row)) shown.push_back(row);
  }
  if (shown == shown_ && columns_ == grid_.columns) {
    if (!shown_.empty()) emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    return false;
  }
  beginResetModel();
  shown_ = std::move(shown);
  columns_ = grid_.columns;
  endResetModel();
  return true;
}

int GridModel::grid_row(int table_row) const {
  return table_row < 0 || table_row >= rowCount() ? 0 : shown_[static_cast<std::size_t>(table_row)];
}

int GridModel::table_row(int grid_row) const {
  const auto found = std::lower_bound(shown_.begin(), shown_.end(), grid_row);
  return found == shown_.end() || *found != grid_row ? -1 : static_cast<int>(found - shown_.begin());
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  const int row = grid_row(index.row());
  switch (role) {
    case Qt::DisplayRole:
      return QString::fromStdString(grid_.cell(row, index.column()));
    case Qt::ToolTipRole:
      return tool_tip(row, index.column());
    case EntryDelegate::kMarkRole:
      return mark && index.column() + 1 == columns_ ? QString::fromStdString(mark(row)) : QString();
    case Qt::ForegroundRole:
      if (cycles && cycles(row, index.column())) return theme::kAccent;
      return index.column() == 0 ? theme::kQuietText : theme::kText;
    default:
      return {};
  }
}

QString GridModel::tool_tip(int row, int column) const {
  std::string text = grid_.cell(row, column);
  const std::string words = mark_in_words ? mark_in_words(row) : std::string();
  if (!words.empty()) text += "\n" + words;
  return theme::literal(QString::fromStdString(text));
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::DisplayRole) return QString::fromStdString(grid_.cell(0, section));
  if (role == Qt::ToolTipRole && explains) return explains(section);
  if (role == Qt::TextAlignmentRole) return int(Qt::AlignLeft | Qt::AlignVCenter);
  return {};
}

GridView::GridView(const QString& name, const QString& caption, const CellTable& grid,
                   std::span<const int> widths, QWidget* parent)
    : RowTable(parent), grid_(grid), widths_(widths), model_(grid) {
  setObjectName(name);
  setAccessibleName(caption);
  theme::keep_font(*this);
  setModel(&model_);
  setItemDelegate(new EntryDelegate(*this, EntryDelegate::CurrentCell::kFramed));
  setSelectionMode(SingleSelection);
  setSelectionBehavior(SelectRows);
  setEditTriggers(NoEditTriggers);
  setAlternatingRowColors(true);
  setHorizontalScrollMode(ScrollPerPixel);
  setCursor(Qt::ArrowCursor);
  setWordWrap(false);
  setTabKeyNavigation(false);
  viewport()->setMouseTracking(true);
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 7 / 4);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setStretchLastSection(true);
}

void GridView::apply() {
  applying_ = true;
  const bool others = model_.refresh();
  setAccessibleDescription(empty_words());
  const int row = model_.table_row(grid_.current_row);
  const QModelIndex wanted = row < 0 ? QModelIndex() : model_.index(row, std::max(grid_.current_column, 0));
  if (currentIndex() != wanted || (row >= 0 && !selectionModel()->isRowSelected(row))) {
    if (row < 0) {
      clearSelection();
      setCurrentIndex({});
    } else {
      setCurrentIndex(wanted);
      scrollTo(wanted);
    }
  }
  applying_ = false;
  if (others || !measured_.is(grid_.rows())) measure();
  share_room();
}

void GridView::fit_columns() {
  for (int column = 0; column < grid_.columns; ++column) {
    const auto index = static_cast<std::size_t>(column);
    const int given = index < widths_.size() ? theme::pixels(widths_[index]) : 0;
    setColumnWidth(column, std::max(given, header_width(column)));
  }
}

void GridView::share_columns(std::vector<int> short_columns) {
  sharing_ = Sharing::kOn;
  short_columns_ = std::move(short_columns);
  horizontalHeader()->setStretchLastSection(false);
  // The style's own least width follows the widest letter of the font: more than a short column may need.
  horizontalHeader()->setMinimumSectionSize(kPadding);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] {
    if (applying_) return;
    sharing_ = Sharing::kOff;
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  });
}

int GridView::header_width(int column) const {
  return fontMetrics().horizontalAdvance(QString::fromStdString(grid_.cell(0, column))) + kPadding;
}

/// Short values come from other players too: one that is not short is cut all the same.
int GridView::least_width(int column) const {
  const bool is_short =
      std::find(short_columns_.begin(), short_columns_.end(), column) != short_columns_.end();
  const int most = fontMetrics().horizontalAdvance(kLongestShortValue) + kPadding;
  return std::max(header_width(column), is_short ? std::min(wanted_width(column), most) : 0);
}

QSize GridView::minimumSizeHint() const {
  const int rows =
      horizontalHeader()->sizeHint().height() + kLeastRows * verticalHeader()->defaultSectionSize();
  return {least_total_ + 2 * frameWidth() + style()->pixelMetric(QStyle::PM_ScrollBarExtent), rows};
}

/// Records come from other players too: of a very long table only the beginning is measured, and of a very
/// long text.
int GridView::wanted_width(int column) const {
  int width = 0;
  for (int row = 0; row < std::min(model_.rowCount(), kMeasuredRows); ++row) {
    const std::string text = grid_.cell(model_.grid_row(row), column);
    const QString measured = QString::fromStdString(text.substr(0, kMeasuredBytes));
    width = std::max(width, fontMetrics().horizontalAdvance(measured) + kPadding);
  }
  return width;
}

void GridView::measure() {
  measured_ = grid_.rows();
  least_.clear();
  wanted_.clear();
  for (int column = 0; column < grid_.columns; ++column) {
    least_.push_back(least_width(column));
    wanted_.push_back(std::max(least_.back(), wanted_width(column)));
  }
  const int total = std::accumulate(least_.begin(), least_.end(), 0);
  if (sharing_ == Sharing::kOff || total == least_total_) return;
  least_total_ = total;
  updateGeometry();
}

void GridView::share_room() {
  if (sharing_ == Sharing::kOff || wanted_.empty() || !isVisible()) return;
  std::vector<int> widths = wanted_;
  int spare = viewport()->width() - std::accumulate(widths.begin(), widths.end(), 0);
  for (; spare < 0; ++spare) {
    int* longest = nullptr;
    for (std::size_t column = 0; column < widths.size(); ++column) {
      int& width = widths[column];
      if (width > least_[column] && (longest == nullptr || width > *longest)) longest = &width;
    }
    if (longest == nullptr) break;
    --*longest;
  }
  applying_ = true;
  for (int column = 0; column < grid_.columns; ++column) {
    const int share = std::max(spare, 0) / (grid_.columns - column);
    spare -= share;
    setColumnWidth(column, widths[static_cast<std::size_t>(column)] + share);
  }
  applying_ = false;
}

void GridView::paintEvent(QPaintEvent* event) {
  RowTable::paintEvent(event);
  theme::draw_empty_words(*viewport(), empty_words());
}

QString GridView::empty_words() const {
  return model_.rowCount() > 0 ? QString() : empty_text_;
}

void GridView::showEvent(QShowEvent* event) {
  RowTable::showEvent(event);
  share_room();
}

void GridView::resizeEvent(QResizeEvent* event) {
  RowTable::resizeEvent(event);
  share_room();
}

void GridView::mousePressEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->position().toPoint());
  setFocus(Qt::MouseFocusReason);
  if (event->button() == Qt::LeftButton && index.isValid() && on_click) {
    on_click(model_.grid_row(index.row()), index.column());
  }
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->position().toPoint());
  const bool acts =
      model_.cycles && index.isValid() && model_.cycles(model_.grid_row(index.row()), index.column());
  viewport()->setCursor(acts ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void GridView::keyPressEvent(QKeyEvent* event) {
  const QModelIndex before = currentIndex();
  if (activates(*event)) {
    if (before.isValid() && on_click) on_click(model_.grid_row(before.row()), before.column());
    return;
  }
  if (event->key() == Qt::Key_Delete && on_delete) {
    on_delete();
    return;
  }
  RowTable::keyPressEvent(event);
  const QModelIndex now = currentIndex();
  if (now.isValid() && now != before && on_move) on_move(model_.grid_row(now.row()), now.column());
}

}  // namespace vorlund
