// Declares the main window's labels and places them.
#include "window/menu_view.h"

#include <QMouseEvent>
#include <QPainterPath>
#include <array>

#include "panes/forecast.h"
#include "window/theme.h"

namespace vorlund {

namespace {

constexpr std::array<const char*, 4> kMenuTips = {"Gives the game's aircraft skins and flight models",
                                                  "Composes the game folder from the groups of the store",
                                                  "Chooses the group that all flight models are taken from",
                                                  "Loads set-ups that were saved under a name"};

/// The title and the version: plain text on the background, hidden by a click.
class TitleLabel : public QLabel {
 public:
  TitleLabel(const QString& name, double size, QWidget* parent) : QLabel(parent) {
    setObjectName(name);
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * size);
    large.setBold(size > 1);
    setFont(large);
  }

  std::function<void()> on_click;

 protected:
  void mousePressEvent(QMouseEvent*) override {}
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (on_click && rect().contains(event->position().toPoint())) on_click();
  }
  /// With a dark edge, so that it can be read on any picture.
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath letters;
    const int baseline = (height() + fontMetrics().ascent() - fontMetrics().descent()) / 2;
    letters.addText(kEdge, baseline, font(), text());
    painter.strokePath(letters, QPen(theme::kField, 2 * kEdge, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(letters, theme::kText);
  }

 private:
  static constexpr int kEdge = 2;
};

}  // namespace

MenuView::MenuView(Form1& form, const Perform& perform, QWidget* parent)
    : PaneView(form, perform), parent_(parent) {
  stand_on(parent);
  title_ = title("Label6", form.Label6, 1.9);
  version_ = title("Label26", form.Label26, 1.0);
  for (int index = 0; index < static_cast<int>(form.Label9.size()); ++index) {
    dragged(element_name("Label9", index), form.Label9[static_cast<std::size_t>(index)],
            kMenuTips.at(static_cast<std::size_t>(index)))
        ->on_release = [this, index](const MouseEvent& event) { run(&Form1::Label9_MouseUp, index, event); };
  }
  auto* loaded = command("WhatsLoaded", form.WhatsLoaded, Look::kPlate, &Form1::WhatsLoaded_Click,
                         "Shows both tables, and says what of them is installed");
  also([loaded, &form] { loaded->setGeometry(theme::pixels(form.WhatsLoaded.place)); });
  dragged("Label18", form.Label18, &Form1::Label18_MouseUp, "Starts the game and minimises this window");
  dragged("Label5", form.Label5, &Form1::Label5_MouseUp,
          "Brings career saves home and deletes what sets have put into the game folder")
      ->tool_tip_now = [&form] {
    return QString::fromStdString(what_clean_up_would_do(form.desk.game(), form.game.G2));
  };
  dragged("Label7", form.Label7, &Form1::Label7_MouseUp, "Minimises this window");
  dragged("ExitButton", form.ExitButton, &Form1::ExitButton_MouseUp,
          "Ends the program; the tables are kept only where they were installed or saved");
  dragged("Contents(0)", form.contents.Contents[0], &Form1::Contents_MouseUp,
          "Tells what \"Process!\" and \"Clean Up\" would do, and where each file comes from; nothing is "
          "written");
  dragged("DelMSN", form.DelMSN, &Form1::DelMSN_MouseUp,
          "Deletes the missions that the game leaves in \"Savedata\"");
  const Label& show = form.desk.labels.Label2;
  show_table_ =
      command("Label2", show, Look::kPrimary, &Form1::Label2_Click, "Shows the table of the running work");
  also([this, &show] { show_table_->setVisible(show.visible && !show.caption.empty()); });
  raise_table_ = command("Label41", form.selection.Label41, Look::kButton, &Form1::Label41_Click,
                         "Shows the table of the running work in front of all else");
}

QLabel* MenuView::title(const char* name, const Label& data, double size) {
  auto* label = new TitleLabel(name, size, parent_);
  label->on_click = [this] { run(&Form1::Label6_MouseUp); };
  also([label, &data] {
    label->setText(QString::fromStdString(data.caption));
    label->resize(label->sizeHint() + QSize(6, 4));
    label->setVisible(data.visible);
  });
  return label;
}

ActionLabel* MenuView::dragged(const QString& name, const Label& data, const QString& tool_tip) {
  auto* widget = new ActionLabel(name, Look::kPlate, parent_, ActionLabel::Drag::kRightButton);
  widget->setToolTip(tool_tip);
  widget->on_press = [this](const MouseEvent& event) { run(&Form1::Label_MouseDown, event); };
  also([widget, &data] {
    widget->setGeometry(theme::pixels(data.place));
    widget->apply(data);
  });
  return widget;
}

ActionLabel* MenuView::dragged(const char* name, const Label& data, Press release, const QString& tool_tip) {
  ActionLabel* widget = dragged(QString(name), data, tool_tip);
  widget->on_release = [this, release](const MouseEvent& event) { run(release, event); };
  return widget;
}

void MenuView::apply() {
  PaneView::apply();
  title_->move(28, 18);
  version_->move(28, title_->geometry().bottom() + 1);
  int right = parent_->width() - 18;
  for (ActionLabel* label : {show_table_, raise_table_}) {
    if (!label->isVisibleTo(parent_)) continue;
    const QSize size = label->sizeHint();
    label->setGeometry(right - size.width(), 14, size.width(), size.height());
    right -= size.width() + 10;
  }
}

void MenuView::raise_table_labels() {
  show_table_->raise();
  raise_table_->raise();
}

}  // namespace vorlund
