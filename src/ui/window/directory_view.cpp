// Lays out the confirmation of the game directory and ties it to the handlers.
#include "ui/window/directory_view.h"

#include <QVBoxLayout>
#include <algorithm>

#include "ui/window/plate.h"
#include "ui/window/theme.h"

namespace vorlund {

namespace {

constexpr int kFolderRole = Qt::UserRole;

}  // namespace

DirectoryView::DirectoryView(Form1& form, const Perform& perform, QWidget* parent)
    : form_(form),
      parent_(parent),
      panel_(new Plate(parent)),
      confirm_(new ActionLabel("Label17", ActionLabel::Look::kPrimary, panel_)),
      path_(new QLabel(panel_)),
      folders_(new QListWidget(panel_)) {
  Form1* f = &form_;
  confirm_->on_release = [f, perform](const MouseEvent&) { perform([&] { f->Label17_Click(); }); };
  confirm_->setToolTip("Double click on it then click this label");
  path_->setObjectName("Label16");
  path_->setTextFormat(Qt::PlainText);
  path_->setWordWrap(true);
  folders_->setObjectName("Dir6");
  theme::keep_font(*folders_);
  folders_->setAccessibleName("Folders around the game directory");
  QObject::connect(folders_, &QListWidget::itemActivated, panel_, [f, perform](QListWidgetItem* item) {
    const int index = item->data(kFolderRole).toInt();
    perform([&] { f->directory.Dir6_DblClick(index); });
  });
  auto* layout = new QVBoxLayout(panel_);
  layout->setContentsMargins(16, 16, 16, 16);
  layout->addWidget(confirm_);
  layout->addWidget(path_);
  layout->addWidget(folders_, 1);
}

void DirectoryView::apply() {
  const GameDirectory& directory = form_.directory;
  confirm_->apply(directory.Label17);
  path_->setText(QString::fromStdString(directory.Label16.caption));
  path_->setVisible(directory.Label16.visible);
  const QString current = QString::fromStdString(directory.Dir6.path);
  const int wanted = static_cast<int>(directory.Dir6.names.size()) + 1;
  if (folders_->property("path").toString() != current || folders_->count() != wanted) {
    folders_->setProperty("path", current);
    folders_->clear();
    const auto add = [&](const QString& name, int index) {
      auto* item = new QListWidgetItem(name, folders_);
      item->setData(kFolderRole, index);
    };
    add("..", -2);
    for (std::size_t index = 0; index < directory.Dir6.names.size(); ++index) {
      add(QString::fromStdString(directory.Dir6.names[index]), static_cast<int>(index));
    }
  }
  folders_->setVisible(directory.Dir6.visible);
  const int width = std::min(460, parent_->width() - 320);
  const int height = std::min(360, parent_->height() - 140);
  panel_->setGeometry(parent_->width() - width - 40, 100, width, height);
  panel_->setVisible(directory.Dir6.visible || directory.Label17.visible);
}

}  // namespace vorlund
