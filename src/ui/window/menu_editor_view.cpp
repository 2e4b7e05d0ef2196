// Lays out the menu editor pane and ties its controls to the handlers.
#include "ui/window/menu_editor_view.h"

#include <QHBoxLayout>
#include <QScrollArea>
#include <QVBoxLayout>

#include "ui/window/theme.h"

namespace vorlund {

namespace {

constexpr std::array<const char*, 3> kMenuNames = {"British menu, picplnb.mnu", "American menu, picplna.mnu",
                                                   "German menu, picplng.mnu"};
constexpr int kPlaneNamesWidth = 168;
constexpr int kSharedEntries = 9;  // the German menu has two more

/// The panel that holds the country buttons.
class MenuChoicePanel : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    theme::draw_plate(painter, rect(), theme::kPanelTitle, QColor(0, 0, 0, 0));
  }
};

}  // namespace

MenuEditorView::MenuEditorView(Form1& form, const Perform& perform, QWidget* parent)
    : form_(form),
      frame_(new PaneFrame("PMenFrame", PaneFrame::FreeArea::kHides, parent)),
      menu_frame_(new MenuChoicePanel(frame_)),
      menu_caption_(new TextLabel("MnuFrameCaption", TextLabel::Tone::kPlain, menu_frame_)),
      header_(new TextLabel("hedlab", TextLabel::Tone::kQuiet, frame_)),
      board_(new QWidget) {
  Form1* f = &form_;
  frame_->on_release = [f, perform](const MouseEvent&) {
    perform([&] { f->menu_editor.PMenFrame_Click(); });
  };
  menu_frame_->setObjectName("MnuFrame");
  add_countries(perform);
  add_entries(perform);
  plane_names_ =
      new ListView("PNameList", "Display names by record", form.plane.pilot_names.PNameList.items, frame_);
  plane_names_->on_select = [f, perform](int index) {
    perform([&] { f->plane.pilot_names.PNameList.selected = index; });
  };
  plane_names_->set_empty_text("\"Make Aircraft Settings\" reads the names");
  lay_out();
}

void MenuEditorView::add_countries(const Perform& perform) {
  Form1* f = &form_;
  auto* row = new QHBoxLayout(menu_frame_);
  row->setContentsMargins(12, 8, 12, 8);
  row->setSpacing(20);
  row->addWidget(menu_caption_, 1);
  for (int index = 0; index < static_cast<int>(countries_.size()); ++index) {
    auto* button = new OptionButton(element_name("CountryBut", index), menu_frame_);
    button->setToolTip(kMenuNames[static_cast<std::size_t>(index)]);
    button->on_click = [f, perform, index] { perform([&] { f->menu_editor.CountryBut_Click(index); }); };
    countries_[static_cast<std::size_t>(index)] = button;
    row->addWidget(button);
  }
}

void MenuEditorView::add_entries(const Perform& perform) {
  Form1* f = &form_;
  auto* grid = new QGridLayout(board_);
  grid->setContentsMargins(0, 0, 6, 0);
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(3);
  add_heading(grid, 1, "Name in the menu");
  add_heading(grid, 2, "Length");
  add_heading(grid, 3, "Bytes carried unchanged");
  for (int index = 0; index < static_cast<int>(entries_.size()); ++index) {
    auto* number = new TextLabel(QString(), TextLabel::Tone::kQuiet, board_);
    number->setText(QString::number(index + 1) + (index < kSharedEntries ? "" : " (G)"));
    if (index >= kSharedEntries) number->setToolTip("Only the German menu has this entry");
    Entry& entry = entries_[static_cast<std::size_t>(index)];
    entry = {new QLineEdit(board_),
             new TextLabel(element_name("mlen", index), TextLabel::Tone::kPlain, board_),
             new TextLabel(element_name("position", index), TextLabel::Tone::kQuiet, board_)};
    entry.name->setObjectName(element_name("bmnutb", index));
    entry.name->setAccessibleName(QStringLiteral("Name of entry %1").arg(index + 1));
    entry.name->setMaxLength(static_cast<int>(MenuEditor::kLongestName));
    QObject::connect(entry.name, &QLineEdit::textEdited, frame_, [f, perform, index](const QString& text) {
      perform([&] { f->menu_editor.set_name(index, text.toStdString()); });
    });
    grid->addWidget(number, index + 1, 0);
    grid->addWidget(entry.name, index + 1, 1);
    grid->addWidget(entry.length, index + 1, 2);
    grid->addWidget(entry.trailer, index + 1, 3);
  }
  grid->setColumnStretch(1, 3);
  grid->setColumnStretch(3, 4);
  grid->setRowStretch(static_cast<int>(entries_.size()) + 1, 1);
}

void MenuEditorView::add_heading(QGridLayout* grid, int column, const QString& text) {
  auto* heading = new TextLabel(QString(), TextLabel::Tone::kQuiet, board_);
  heading->setText(text);
  grid->addWidget(heading, 0, column);
}

void MenuEditorView::lay_out() {
  auto* area = new QScrollArea(frame_);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidgetResizable(true);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setWidget(board_);
  area->setStyleSheet("QScrollArea { background: transparent; }");
  board_->setAutoFillBackground(false);

  auto* note = new QLabel(
      "Shown is the menu that was read last. A button only says which menu is read or written next: "
      "\"Process!\" in the aircraft pane reads, renames and writes all three.",
      frame_);
  note->setWordWrap(true);
  note->setStyleSheet(QStringLiteral("color: %1;").arg(theme::kQuietText.name()));
  auto* names_heading = new TextLabel(QString(), TextLabel::Tone::kQuiet, frame_);
  names_heading->setText("Display names");
  auto* names = new QVBoxLayout;
  names->setSpacing(4);
  names->addWidget(names_heading);
  names->addWidget(plane_names_, 1);
  plane_names_->setFixedWidth(kPlaneNamesWidth);

  auto* header_heading = new TextLabel(QString(), TextLabel::Tone::kQuiet, frame_);
  header_heading->setText("Header:");
  auto* header = new QHBoxLayout;
  header->addWidget(header_heading);
  header->addWidget(header_, 1);
  auto* both = new QHBoxLayout;
  both->setSpacing(14);
  both->addWidget(area, 1);
  both->addLayout(names);
  frame_->content()->addWidget(menu_frame_);
  frame_->content()->addLayout(header);
  frame_->content()->addLayout(both, 1);
  frame_->content()->addWidget(note);
  // Whoever clicks on a text or beside a name box does not mean to hide the pane.
  for (QWidget* part : frame_->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    part->setAttribute(Qt::WA_NoMousePropagation);
    part->setCursor(Qt::ArrowCursor);
  }
}

void MenuEditorView::apply() {
  const MenuEditor& pane = form_.menu_editor;
  fit_to_room(form_.menu_editor.PMenFrame, *frame_->parentWidget(), QSize(1080, 540));
  const QString caption = QString::fromStdString(pane.MnuFrame.caption);
  menu_caption_->setText(caption);
  menu_frame_->setAccessibleName(caption);
  menu_frame_->setVisible(pane.MnuFrame.visible);
  for (std::size_t index = 0; index < countries_.size(); ++index) {
    countries_[index]->apply(pane.CountryBut[index]);
  }
  header_->apply(pane.hedlab);
  for (std::size_t index = 0; index < entries_.size(); ++index) {
    const QString name = QString::fromStdString(pane.bmnutb[index].text);
    if (entries_[index].name->text() != name) entries_[index].name->setText(name);
    entries_[index].length->apply(pane.mlen[index]);
    entries_[index].trailer->apply(pane.position[index]);
  }
  plane_names_->apply(form_.plane.pilot_names.PNameList.selected);
  frame_->apply(pane.PMenFrame);
}

}  // namespace vorlund
