// Declares the controls that confirm the game directory and lays them out.
#include "window/directory_view.h"

#include <QVBoxLayout>
#include <algorithm>

#include "window/plate.h"
#include "window/theme.h"

namespace vorlund {

namespace {

constexpr int kFolderRole = Qt::UserRole;

}  // namespace

DirectoryView::DirectoryView(Form1& form, const Perform& perform, QWidget* parent)
    : PaneView(form, perform), parent_(parent), panel_(new Plate(parent)), folders_(new QListWidget(panel_)) {
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
  folders_->setObjectName("Dir6");
  theme::keep_font(*folders_);
  folders_->setToolTip("A double click opens a folder and makes it the game folder");
  folders_->setAccessibleName("Folders around the game directory");
  QObject::connect(folders_, &QListWidget::itemActivated, panel_, [this](QListWidgetItem* item) {
    run(&Form1::Dir6_DblClick, item->data(kFolderRole).toInt());
  });
  also([this] { list_folders(); });

  auto* layout = new QVBoxLayout(panel_);
  layout->setContentsMargins(16, 16, 16, 16);
  layout->addWidget(confirm);
  layout->addWidget(path);
  layout->addWidget(folders_, 1);
}

void DirectoryView::list_folders() {
  const FolderList& shown = form_.desk.directory.Dir6;
  const QString current = QString::fromStdString(shown.path);
  const int wanted = static_cast<int>(shown.names.size()) + 1;
  folders_->setVisible(shown.visible);
  if (folders_->property("path").toString() == current && folders_->count() == wanted) return;
  folders_->setProperty("path", current);
  folders_->clear();
  const auto add = [&](const QString& name, int index) {
    auto* item = new QListWidgetItem(name, folders_);
    item->setData(kFolderRole, index);
  };
  add("..", -2);
  for (std::size_t index = 0; index < shown.names.size(); ++index) {
    add(QString::fromStdString(shown.names[index]), static_cast<int>(index));
  }
}

void DirectoryView::apply() {
  PaneView::apply();
  const int width = std::min(460, parent_->width() - 320);
  const int height = std::min(360, parent_->height() - 140);
  panel_->setGeometry(parent_->width() - width - 40, 100, width, height);
  panel_->setVisible(form_.desk.directory.Dir6.visible || form_.desk.directory.Label17.visible);
}

}  // namespace vorlund
