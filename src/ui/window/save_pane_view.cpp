// Lays out the save pane and ties its controls to the handlers.
#include "ui/window/save_pane_view.h"

#include <QHBoxLayout>

#include "ui/window/theme.h"

namespace vorlund {

SavePaneView::SavePaneView(Form1& form, const Perform& perform, QWidget* parent)
    : form_(form),
      frame_(new PaneFrame("SaveFrame", PaneFrame::FreeArea::kHides, parent)),
      prompt_(new QLabel(frame_)),
      name_(new QLineEdit(frame_)),
      refusal_(new QLabel(frame_)),
      heading_(new TextLabel("Label22", TextLabel::Tone::kQuiet, frame_)),
      existing_(new ListView("File5", "Existing files", form.save_pane.File5.names, frame_)),
      ok_(new ActionLabel("Label4", ActionLabel::Look::kPrimary, frame_)),
      cancel_(new ActionLabel("Label39", ActionLabel::Look::kButton, frame_)) {
  Form1* f = &form_;
  const auto save = [f, perform] { perform([&] { f->save_pane.Label4_Click(); }); };
  frame_->on_release = [f, perform](const MouseEvent&) { perform([&] { f->save_pane.SaveFrame_Click(); }); };
  prompt_->setObjectName("SavePrompt");
  name_->setObjectName("Text2");
  name_->setAccessibleName("Name to save under");
  QObject::connect(name_, &QLineEdit::textEdited, frame_, [f, perform](const QString& text) {
    perform([&] {
      f->save_pane.Text2.text = text.toStdString();
      f->save_pane.refusal.visible = false;
    });
  });
  QObject::connect(name_, &QLineEdit::returnPressed, frame_, save);
  refusal_->setObjectName("SaveRefusal");
  refusal_->setTextFormat(Qt::PlainText);
  refusal_->setWordWrap(true);
  refusal_->setStyleSheet(QStringLiteral("color: %1; font-weight: bold;").arg(theme::kAccent.name()));
  existing_->on_select = [f, perform](int index) { perform([&] { f->save_pane.File5_Click(index); }); };
  existing_->set_empty_text("Nothing has been saved yet");
  ok_->on_release = [save](const MouseEvent&) { save(); };
  cancel_->on_release = [f, perform](const MouseEvent&) { perform([&] { f->save_pane.Label39_Click(); }); };
  lay_out();
}

void SavePaneView::lay_out() {
  auto* commands = new QHBoxLayout;
  commands->addWidget(ok_, 2);
  commands->addWidget(cancel_, 1);
  frame_->content()->addWidget(prompt_);
  frame_->content()->addWidget(name_);
  frame_->content()->addWidget(refusal_);
  frame_->content()->addWidget(heading_);
  frame_->content()->addWidget(existing_, 1);
  frame_->content()->addLayout(commands);
}

void SavePaneView::apply() {
  const SavePane& pane = form_.save_pane;
  prompt_->setText(pane.kind == SavePane::SaveKind::kGameSet ? "Save the game table under the name"
                                                             : "Save the aircraft table under the name");
  const QString name = QString::fromStdString(pane.Text2.text);
  if (name_->text() != name) name_->setText(name);
  name_->setVisible(pane.Text2.visible);
  refusal_->setText(QString::fromStdString(pane.refusal.caption));
  refusal_->setVisible(pane.refusal.visible);
  heading_->apply(pane.Label22);
  existing_->apply(pane.File5.selected);
  ok_->apply(pane.Label4);
  cancel_->apply(pane.Label39);
  frame_->apply(pane.SaveFrame);
}

}  // namespace vorlund
