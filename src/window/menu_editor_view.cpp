// Declares the controls of the menu editor and lays them out.
#include <QGridLayout>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QVBoxLayout>
#include <array>

#include "window/plate.h"
#include "window/theme.h"
#include "window/views.h"

namespace vorlund {

namespace {

constexpr std::array<const char*, 4> kHeadings = {"", "Name in the menu", "Length",
                                                  "Bytes carried unchanged"};
constexpr int kPlaneNamesWidth = 168;
constexpr int kSharedEntries = 9;  // the German menu has two more

/// View of MenuEditor's `PMenFrame` with `MnuFrame` in it, and of the list of display names.
class MenuEditorView : public PaneView {
 public:
  MenuEditorView(Form1& form, const Perform& perform, QWidget* parent);

 private:
  QWidget* make_countries();
  QWidget* make_entries();
  void make_entry(QGridLayout* grid, int index);
  QLayout* make_names();
};

MenuEditorView::MenuEditorView(Form1& form, const Perform& perform, QWidget* parent)
    : PaneView(form, perform) {
  const MenuEditor& pane = form.menu_editor;
  clicked_frame("PMenFrame", pane.PMenFrame, parent, &Form1::PMenFrame_Click);
  auto* countries = make_countries();
  auto* header = new QHBoxLayout;
  header->addWidget(note("Header:"));
  header->addWidget(text("hedlab", pane.hedlab, Tone::kQuiet), 1);
  auto* both = new QHBoxLayout;
  both->setSpacing(14);
  both->addWidget(make_entries(), 1);
  both->addLayout(make_names());
  auto* advice = hint("MenuHint", [] {
    return QString(
        "Typed names are not kept: \"Process!\" in the aircraft pane reads all three menus, puts the display "
        "names into them and writes them. A button only says which menu is read next.");
  });
  auto* foot = new QHBoxLayout;
  foot->addWidget(advice, 1);
  foot->addWidget(command("MenuHide", pane.MenuHide, Look::kButton, &Form1::MenuHide_Click,
                          "Hides the menu editor (Escape)"));
  frame_->content()->addWidget(text("MenuShown", pane.MenuShown, Tone::kStrong));
  frame_->content()->addWidget(countries);
  frame_->content()->addLayout(header);
  frame_->content()->addLayout(both, 1);
  frame_->content()->addLayout(foot);
  // Whoever clicks on a text or beside a name box does not mean to hide the pane.
  for (QWidget* part : frame_->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    part->setAttribute(Qt::WA_NoMousePropagation);
    part->setCursor(Qt::ArrowCursor);
  }
}

QWidget* MenuEditorView::make_countries() {
  const MenuEditor& pane = form_.menu_editor;
  auto* panel = new Plate(frame_, theme::kPanelTitle);
  panel->setObjectName("MnuFrame");
  stand_on(panel);
  auto* caption = note({}, Tone::kPlain);
  caption->setObjectName("MnuFrameCaption");
  also([panel, caption, &pane] {
    caption->setText(QString::fromStdString(pane.MnuFrame.caption));
    panel->setAccessibleName(caption->text());
    panel->setVisible(pane.MnuFrame.visible);
  });
  auto* row = new QHBoxLayout(panel);
  row->setContentsMargins(12, 8, 12, 8);
  row->setSpacing(20);
  row->addWidget(caption, 1);
  for (std::size_t index = 0; index < MenuEditor::kMenuNames.size(); ++index) {
    auto* button =
        option("CountryBut", static_cast<int>(index), pane.CountryBut[index], &Form1::CountryBut_Click);
    button->setToolTip(MenuEditor::kMenuNames[index]);
    row->addWidget(button);
  }
  stand_on(frame_);
  return panel;
}

QWidget* MenuEditorView::make_entries() {
  auto* area = new QScrollArea(frame_);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidgetResizable(true);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setStyleSheet("QScrollArea { background: transparent; }");
  auto* entries = new QWidget;
  area->setWidget(entries);
  entries->setAutoFillBackground(false);
  stand_on(entries);
  auto* grid = new QGridLayout(entries);
  grid->setContentsMargins(0, 0, 6, 0);
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(3);
  for (std::size_t column = 1; column < kHeadings.size(); ++column) {
    grid->addWidget(note(kHeadings[column]), 0, static_cast<int>(column));
  }
  constexpr int kRows = static_cast<int>(PictureMenu::kEntries);
  for (int index = 0; index < kRows; ++index) make_entry(grid, index);
  grid->setColumnStretch(1, 3);
  grid->setColumnStretch(3, 4);
  grid->setRowStretch(kRows + 1, 1);
  stand_on(frame_);
  return area;
}

void MenuEditorView::make_entry(QGridLayout* grid, int index) {
  const MenuEditor& pane = form_.menu_editor;
  const auto at = static_cast<std::size_t>(index);
  auto* number = note(QString::number(index + 1) + (index < kSharedEntries ? "" : " (G)"));
  if (index >= kSharedEntries) number->setToolTip("Only the German menu has this entry");
  auto* name = text_box(
      element_name("bmnutb", index), QStringLiteral("Name of entry %1").arg(index + 1), pane.bmnutb[at],
      [this, index](const std::string& typed) { run(&Form1::bmnutb_Change, index, typed); });
  name->setToolTip("The name as it stands in the menu; what is typed is not kept");
  name->setMaxLength(static_cast<int>(PictureMenu::kLongestName));
  grid->addWidget(number, index + 1, 0);
  grid->addWidget(name, index + 1, 1);
  grid->addWidget(text(element_name("mlen", index), pane.mlen[at], Tone::kPlain), index + 1, 2);
  grid->addWidget(text(element_name("position", index), pane.position[at], Tone::kQuiet), index + 1, 3);
}

QLayout* MenuEditorView::make_names() {
  PlanePane& plane = form_.plane;
  auto* list = new ListView("PNameList", "Display names by record", plane.pilot_names.PNameList,
                            plane.found_names, frame_);
  find_in(list, plane.found_names);
  list->set_empty_text("\"Make Aircraft Settings\" reads the names");
  list->setFixedWidth(kPlaneNamesWidth);
  list->setToolTip("The names that the game shows, in the order of its aircraft records");
  also([list] { list->apply(-1); });
  auto* names = new QVBoxLayout;
  names->setSpacing(4);
  names->addWidget(note("Display names"));
  names->addWidget(list, 1);
  return names;
}

}  // namespace

std::unique_ptr<PaneView> menu_editor_view(Form1& form, const Perform& perform, QWidget* parent) {
  return std::make_unique<MenuEditorView>(form, perform, parent);
}

}  // namespace vorlund
