// Places the main window's labels and ties them to the handlers.
#include "ui/window/menu_view.h"

#include <QMouseEvent>
#include <QPainterPath>

#include "ui/window/theme.h"

namespace vorlund {

namespace {

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
    : form_(form), perform_(perform), parent_(parent) {
  Form1* f = &form_;
  auto* title = new TitleLabel("Label6", 1.9, parent);
  auto* version = new TitleLabel("Label26", 1.0, parent);
  title->on_click = version->on_click = [f, perform] { perform([f] { f->Label6_MouseUp(); }); };
  title_ = title;
  version_ = version;
  for (int index = 0; index < static_cast<int>(form.Label9.size()); ++index) {
    add(element_name("Label9", index), form.Label9[static_cast<std::size_t>(index)])->on_release =
        [f, perform, index](const MouseEvent& e) { perform([&] { f->Label9_MouseUp(index, e); }); };
  }
  const auto command = [&](const QString& name, const Label& label, Release release) {
    add(name, label)->on_release = [f, perform, release](const MouseEvent& e) {
      perform([&] { (f->*release)(e); });
    };
  };
  command("Label18", form.Label18, &Form1::Label18_MouseUp);
  command("Label5", form.Label5, &Form1::Label5_MouseUp);
  command("DelMSN", form.DelMSN, &Form1::DelMSN_MouseUp);
  command("Label7", form.Label7, &Form1::Label7_MouseUp);
  command("ExitButton", form.ExitButton, &Form1::ExitButton_MouseUp);

  auto* whats_loaded = new ActionLabel("WhatsLoaded", ActionLabel::Look::kPlate, parent);
  whats_loaded->on_release = [f, perform](const MouseEvent&) { perform([&] { f->WhatsLoaded_Click(); }); };
  placed_.push_back({whats_loaded, &form.WhatsLoaded});

  show_table_ = new ActionLabel("Label2", ActionLabel::Look::kPrimary, parent);
  show_table_->on_release = [f, perform](const MouseEvent&) {
    perform([&] { f->selection.Label2_Click(); });
  };
  raise_table_ = new ActionLabel("Label41", ActionLabel::Look::kButton, parent);
  raise_table_->on_release = [f, perform](const MouseEvent&) {
    perform([&] { f->selection.Label41_Click(); });
  };
}

ActionLabel* MenuView::add(const QString& name, const Label& label) {
  auto* widget = new ActionLabel(name, ActionLabel::Look::kPlate, parent_, ActionLabel::Drag::kRightButton);
  widget->on_press = [this](const MouseEvent& event) { perform_([&] { form_.Label_MouseDown(event); }); };
  placed_.push_back({widget, &label});
  return widget;
}

void MenuView::apply() {
  for (const Shown& shown : placed_) {
    shown.widget->setGeometry(theme::pixels(shown.label->place));
    shown.widget->apply(*shown.label);
  }
  title_->setText(QString::fromStdString(form_.Label6.caption));
  title_->setGeometry(28, 18, title_->sizeHint().width() + 6, title_->sizeHint().height() + 4);
  title_->setVisible(form_.Label6.visible);
  version_->setText(QString::fromStdString(form_.Label26.caption));
  version_->setGeometry(28, title_->geometry().bottom() + 1, version_->sizeHint().width() + 6,
                        version_->sizeHint().height() + 4);
  version_->setVisible(form_.Label26.visible);
  show_table_->apply(form_.labels().Label2);
  show_table_->setVisible(form_.labels().Label2.visible && !form_.labels().Label2.caption.empty());
  raise_table_->apply(form_.selection.Label41);
  place_table_labels();
}

void MenuView::place_table_labels() {
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
