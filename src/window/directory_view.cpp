// Declares the controls that confirm the game directory and lays them out.
#include <QVBoxLayout>
#include <algorithm>
#include <string>
#include <vector>

#include "window/plate.h"
#include "window/theme.h"
#include "window/views.h"

namespace vorlund {

namespace {

/// View of GameDirectory: the path, the folder tree around it, and the label that confirms it.
class DirectoryView : public PaneView {
 public:
  DirectoryView(Form1& form, const Perform& perform, QWidget* parent);
  void apply() override;

 private:
  QWidget* parent_;
  QWidget* panel_;
  std::vector<std::string> folders_;  ///< ".." and the names
};

DirectoryView::DirectoryView(Form1& form, const Perform& perform, QWidget* parent)
    : PaneView(form, perform), parent_(parent), panel_(new Plate(parent)) {
  const GameDirectory& directory = form.desk.directory;
  stand_on(panel_);
  auto* confirm = command("Label17", directory.Label17, Look::kPrimary, &Form1::Label17_Click,
                          "Double click on it then click this label");
  auto* path = new QLabel(panel_);
  path->setObjectName("Label16");
  path->setTextFormat(Qt::PlainText);
  path->setWordWrap(true);
  also([path, &directory] {
    path->setText(QString::fromStdString(directory.Label16.caption));
    path->setVisible(directory.Label16.visible);
  });
  FolderList& shown = form.desk.directory.Dir6;
  auto* folders = new ListView("Dir6", "Folders around the game directory", folders_, shown.finder, panel_,
                               ListView::Kind::kFolders);
  folders->setToolTip("A double click opens a folder and makes it the game folder");
  folders->on_select = [this](int entry) {
    run(&Form1::Dir6_DblClick, entry == 0 ? GameDirectory::kParent : entry - 1);
  };
  find_in(folders, shown.finder);
  also([this, folders, &shown] {
    folders_ = {".."};
    folders_.insert(folders_.end(), shown.names.begin(), shown.names.end());
    folders->apply(-1);
    folders->setVisible(shown.visible);
  });

  auto* layout = new QVBoxLayout(panel_);
  layout->setContentsMargins(16, 16, 16, 16);
  layout->addWidget(confirm);
  layout->addWidget(path);
  layout->addWidget(folders, 1);
}

void DirectoryView::apply() {
  PaneView::apply();
  const int width = std::min(460, parent_->width() - 320);
  const int height = std::min(360, parent_->height() - 140);
  panel_->setGeometry(parent_->width() - width - 40, 100, width, height);
  panel_->setVisible(form_.desk.directory.Dir6.visible || form_.desk.directory.Label17.visible);
}

}  // namespace

std::unique_ptr<PaneView> directory_view(Form1& form, const Perform& perform, QWidget* parent) {
  return std::make_unique<DirectoryView>(form, perform, parent);
}

}  // namespace vorlund
