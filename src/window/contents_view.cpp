// Declares the controls of the contents pane and lays them out.
#include <QAbstractTableModel>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QShortcut>
#include <QTableView>
#include <algorithm>

#include "window/entry_delegate.h"
#include "window/row_table.h"
#include "window/theme.h"
#include "window/views.h"

namespace vorlund {

namespace {

constexpr int kKindsWidth = 226;
constexpr int kChainHeight = 96;

/// What each column but the size, which is never cut, is given of the table's width, in hundredths of the
/// rest.
constexpr std::array<int, 4> kShares = {27, 31, 19, 23};

/// A table that gives its columns their shares whenever it is sized.
class SharedTable : public RowTable {
 public:
  using RowTable::RowTable;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    RowTable::keyPressEvent(event);
    // The focus comes with a current row that is not selected, and no key moves within a single row.
    if (currentIndex().isValid() && !selectionModel()->hasSelection()) selectRow(currentIndex().row());
  }

  void resizeEvent(QResizeEvent* event) override {
    RowTable::resizeEvent(event);
    const int width = viewport()->width();
    const int size =
        std::max(width / 8, fontMetrics().horizontalAdvance("999 bytes") + 2 * EntryDelegate::kMargin + 4);
    for (std::size_t column = 0; column < kShares.size(); ++column) {
      setColumnWidth(static_cast<int>(column), (width - size) * kShares[column] / 100);
    }
    setColumnWidth(static_cast<int>(kShares.size()), size);
  }
};

QVariant colour_of(const ContentsLine& line, int column) {
  if (static_cast<ContentsPane::Column>(column) != ContentsPane::Column::kState) return theme::kText;
  const bool settled = line.state == "in place" || line.state == "as chosen";
  return settled ? theme::kQuietText : theme::kAccent;
}

/// The lines of the pane as a Qt model; nothing is copied.
class ContentsModel : public QAbstractTableModel {
 public:
  explicit ContentsModel(const ContentsPane& pane) : pane_(pane) {}

  /// Takes over other lines, or another order.
  void refresh();

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const ContentsPane& pane_;
  int generation_ = -1;
  int rows_ = 0;
};

/// View of ContentsPane.
class ContentsView : public PaneView {
 public:
  ContentsView(Form1& form, const Perform& perform, QWidget* parent);

 private:
  QTableView* make_table();
  QWidget* make_filter();
  void follow_lines();

  ContentsModel model_;
  QTableView* table_ = nullptr;
  bool following_ = false;
};

void ContentsModel::refresh() {
  if (generation_ == pane_.generation()) return;
  beginResetModel();
  generation_ = pane_.generation();
  rows_ = pane_.line_count();
  endResetModel();
}

int ContentsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int ContentsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(ContentsPane::kColumns.size());
}

QVariant ContentsModel::data(const QModelIndex& index, int role) const {
  const auto column = static_cast<ContentsPane::Column>(index.column());
  switch (role) {
    case Qt::DisplayRole:
      return QString::fromStdString(pane_.cell(index.row(), column));
    case Qt::ToolTipRole:
      return theme::literal(QString::fromStdString(pane_.cell(index.row(), column)));
    case Qt::ForegroundRole:
      return colour_of(pane_.line(index.row()), index.column());
    default:
      return {};
  }
}

QVariant ContentsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole) return int(Qt::AlignLeft | Qt::AlignVCenter);
  if (role != Qt::DisplayRole) return {};
  const std::string_view name = ContentsPane::kColumns[static_cast<std::size_t>(section)];
  return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

ContentsView::ContentsView(Form1& form, const Perform& perform, QWidget* parent)
    : PaneView(form, perform), model_(form.contents) {
  ContentsPane& pane = form.contents;
  dragged_frame("ContentsFrame", pane.ContentsFrame, parent, &Form1::ContentsFrame_MouseDown,
                &Form1::ContentsFrame_MouseUp, [this] { run(&Form1::ContentsHide_Click); });
  auto* sum = hint("ContentsSum", [&pane] { return QString::fromStdString(pane.ContentsSum.caption); });
  sum->setStyleSheet(QStringLiteral("color: %1;").arg(theme::kText.name()));
  sum->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* kinds = list("ContentsKinds", "What to show", pane.ContentsKinds, &Form1::ContentsKinds_Click, {});
  kinds->setFixedWidth(kKindsWidth);
  kinds->setToolTip("Chooses what the table shows");
  auto* chain = list("ContentsChain", "Rows that write the selected file", pane.ContentsChain,
                     &Form1::ContentsChain_Click, "Select a file to see the rows that write it, in order");
  chain->setFixedHeight(kChainHeight);
  chain->setToolTip("Every row that writes the file, in order; the one whose bytes stand there is marked");

  auto* right = new QVBoxLayout;
  right->setSpacing(8);
  right->addWidget(make_filter());
  right->addWidget(make_table(), 1);
  right->addWidget(chain);
  auto* both = new QHBoxLayout;
  both->setSpacing(12);
  both->addWidget(kinds);
  both->addLayout(right, 1);
  auto* commands = new QHBoxLayout;
  commands->addWidget(
      command("ContentsAgain", pane.ContentsAgain, Look::kPrimary, &Form1::ContentsAgain_Click,
              "Reads the tables and the folder anew; nothing is written"),
      1);
  commands->addWidget(command("ContentsCopy", pane.ContentsCopy, Look::kButton, &Form1::ContentsCopy_Click,
                              "Copies the selected rows, or all that are shown, as text"),
                      1);
  commands->addWidget(command("ContentsHide", pane.ContentsHide, Look::kButton, &Form1::ContentsHide_Click,
                              "Hides the pane (Escape)"),
                      1);
  frame_->content()->addWidget(sum);
  frame_->content()->addLayout(both, 1);
  frame_->content()->addLayout(commands);
}

QWidget* ContentsView::make_filter() {
  auto* filter = text_box("ContentsFilter", "Show only lines with these words", form_.contents.ContentsFilter,
                          [this](const std::string& typed) { run(&Form1::ContentsFilter_Change, typed); });
  filter->setPlaceholderText("Type words to show only the lines that hold them");
  filter->setClearButtonEnabled(true);
  filter->setToolTip("Shows only the lines that hold these words, whatever their case and accents");
  return filter;
}

QTableView* ContentsView::make_table() {
  table_ = new SharedTable(frame_);
  table_->setObjectName("ContentsTable");
  table_->setAccessibleName("What is in the game folder");
  table_->setToolTip("A click on a heading sorts; Ctrl+C copies the selected rows");
  theme::keep_font(*table_);
  table_->setModel(&model_);
  table_->setItemDelegate(new EntryDelegate(*table_, EntryDelegate::CurrentCell::kPlain));
  table_->setSelectionBehavior(QTableView::SelectRows);
  table_->setSelectionMode(QTableView::ExtendedSelection);
  table_->setEditTriggers(QTableView::NoEditTriggers);
  table_->setAlternatingRowColors(true);
  table_->setWordWrap(false);
  table_->setTabKeyNavigation(false);
  table_->setCursor(Qt::ArrowCursor);
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() * 3 / 2);
  QHeaderView* header = table_->horizontalHeader();
  header->setHighlightSections(false);
  header->setSectionsClickable(true);
  header->setSortIndicatorShown(true);
  QObject::connect(header, &QHeaderView::sectionClicked, frame_,
                   [this](int column) { run(&Form1::ContentsTable_Sort, column); });
  QObject::connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, frame_, [this] {
    if (following_) return;
    std::vector<int> places;
    for (const QModelIndex& index : table_->selectionModel()->selectedRows()) places.push_back(index.row());
    std::sort(places.begin(), places.end());
    run(&Form1::ContentsTable_Select, places);
  });
  auto* copy = new QShortcut(QKeySequence::Copy, table_);
  copy->setContext(Qt::WidgetShortcut);
  QObject::connect(copy, &QShortcut::activated, frame_, [this] { run(&Form1::ContentsCopy_Click); });
  also([this] { follow_lines(); });
  return table_;
}

/// The table keeps its scroll position while the lines stay the same.
void ContentsView::follow_lines() {
  following_ = true;
  model_.refresh();
  table_->horizontalHeader()->setSortIndicator(
      static_cast<int>(form_.contents.sorted_by()),
      form_.contents.is_descending() ? Qt::DescendingOrder : Qt::AscendingOrder);
  following_ = false;
}

}  // namespace

std::unique_ptr<PaneView> contents_view(Form1& form, const Perform& perform, QWidget* parent) {
  return std::make_unique<ContentsView>(form, perform, parent);
}

}  // namespace vorlund
