// Makes the widget of each declared control, and ties it to its data and its handler.
#include "window/pane_view.h"

#include "window/theme.h"

namespace vorlund {

void PaneView::apply() {
  for (const auto& show : shows_) show();
}

PaneFrame* PaneView::make_frame(const char* name, const Frame& data, PaneFrame::FreeArea free_area,
                                QWidget* parent) {
  frame_ = new PaneFrame(name, free_area, parent);
  board_ = frame_;
  also([this, &data] { frame_->apply(data); });
  return frame_;
}

void PaneView::dragged_frame(const char* name, const Frame& data, QWidget* parent, Press press, Press release,
                             std::function<void()> close) {
  close_ = std::move(close);
  make_frame(name, data, PaneFrame::FreeArea::kMoves, parent);
  frame_->on_press = [this, press](const MouseEvent& event) { run(press, event); };
  frame_->on_release = [this, release](const MouseEvent& event) { run(release, event); };
}

void PaneView::clicked_frame(const char* name, const Frame& data, QWidget* parent, Click hide) {
  make_frame(name, data, PaneFrame::FreeArea::kHides, parent);
  close_ = [this, hide] { run(hide); };
  frame_->on_release = [this, hide](const MouseEvent&) { run(hide); };
}

ActionLabel* PaneView::show_command(ActionLabel* widget, const Label& data, const QString& tool_tip) {
  widget->setToolTip(tool_tip);
  also([widget, &data] { widget->apply(data); });
  return widget;
}

ActionLabel* PaneView::command(const char* name, const Label& data, Look look, Click handler,
                               const QString& tool_tip) {
  auto* widget = new ActionLabel(name, look, board_);
  widget->on_release = [this, handler](const MouseEvent&) { run(handler); };
  return show_command(widget, data, tool_tip);
}

ActionLabel* PaneView::command(const char* array, int index, const Label& data, Look look,
                               IndexedClick handler, const QString& tool_tip) {
  auto* widget = new ActionLabel(element_name(array, index), look, board_);
  widget->on_release = [this, handler, index](const MouseEvent&) { run(handler, index); };
  return show_command(widget, data, tool_tip);
}

TextLabel* PaneView::text(const QString& name, const Label& data, Tone tone) {
  auto* widget = new TextLabel(name, tone, board_);
  also([widget, &data] { widget->apply(data); });
  return widget;
}

void PaneView::find_in(ListView* view, Finder& finder) {
  view->on_find = [this, &finder](const std::string& typed) {
    perform_([&finder, &typed] { finder.typed = typed; });
  };
}

ListView* PaneView::show_list(ListView* view, const int& selected, Finder& finder, IndexedClick handler) {
  view->on_select = [this, handler](int index) { run(handler, index); };
  find_in(view, finder);
  also([view, &selected] { view->apply(selected); });
  return view;
}

ListView* PaneView::list(const char* name, const QString& caption, ListBox& data, IndexedClick handler,
                         const QString& when_empty) {
  auto* view = show_list(new ListView(name, caption, data.items, data.finder, board_), data.selected,
                         data.finder, handler);
  view->set_empty_text(when_empty);
  also([view, &data] { view->setVisible(data.visible); });
  return view;
}

ListView* PaneView::list(const char* name, const QString& caption, FileList& data, IndexedClick handler,
                         const QString& when_empty) {
  auto* view = show_list(new ListView(name, caption, data.names, data.finder, board_), data.selected,
                         data.finder, handler);
  view->set_empty_text(when_empty);
  return view;
}

ListView* PaneView::labels(const char* array, const QString& caption, const std::vector<Label>& data,
                           const int& selected, Finder& finder, IndexedClick handler) {
  return show_list(new ListView(array, caption, data, finder, board_), selected, finder, handler);
}

OptionButton* PaneView::option(const char* array, int index, const Choice& data, IndexedClick handler) {
  auto* widget = new OptionButton(element_name(array, index), board_);
  widget->on_click = [this, handler, index] { run(handler, index); };
  also([widget, &data] { widget->apply(data); });
  return widget;
}

CheckBox* PaneView::check_box(const char* name, const Choice& data, Click handler) {
  auto* widget = new CheckBox(name, board_);
  widget->on_click = [this, handler] { run(handler); };
  also([widget, &data] { widget->apply(data); });
  return widget;
}

PictureView* PaneView::picture(const char* name, const Picture& data, PictureFit fit, const QString& caption,
                               Click handler) {
  auto* view = new PictureView(name, fit, board_);
  view->setAccessibleName(caption);
  view->on_click = [this, handler] { run(handler); };
  also([view, &data] { view->apply(data); });
  return view;
}

QLineEdit* PaneView::text_box(const QString& name, const QString& caption, const TextBox& data,
                              std::function<void(const std::string&)> typed) {
  auto* box = new QLineEdit(board_);
  box->setObjectName(name);
  box->setAccessibleName(caption);
  QObject::connect(box, &QLineEdit::textEdited, frame_,
                   [typed = std::move(typed)](const QString& text) { typed(text.toStdString()); });
  also([box, &data] {
    const QString shown = QString::fromStdString(data.text);
    if (box->text() != shown) box->setText(shown);
    box->setVisible(data.visible);
  });
  return box;
}

TextLabel* PaneView::note(const QString& words, Tone tone) {
  auto* widget = new TextLabel(QString(), tone, board_);
  widget->setText(words);
  return widget;
}

QLabel* PaneView::hint(const char* name, std::function<QString()> words) {
  auto* label = new QLabel(board_);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setStyleSheet(QStringLiteral("color: %1;").arg(theme::kQuietText.name()));
  also([label, words = std::move(words)] { label->setText(words()); });
  return label;
}

}  // namespace vorlund
