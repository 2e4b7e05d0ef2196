// Declares the controls of the save pane and lays them out.
#include <QHBoxLayout>

#include "window/theme.h"
#include "window/views.h"

namespace vorlund {

namespace {

/// View of SavePane's `SaveFrame`.
class SavePaneView : public PaneView {
 public:
  SavePaneView(Form1& form, const Perform& perform, QWidget* parent) : PaneView(form, perform) {
    SavePane& pane = form.save_pane;
    clicked_frame("SaveFrame", pane.SaveFrame, parent, &Form1::SaveFrame_Click);
    auto* prompt = hint("SavePrompt", [&pane] {
      return QString(pane.kind == SavePane::SaveKind::kGameSet ? "Save the game table under the name"
                                                               : "Save the aircraft table under the name");
    });
    auto* name = text_box("Text2", "Name to save under", pane.Text2,
                          [this](const std::string& typed) { run(&Form1::Text2_Change, typed); });
    name->setToolTip("The name of the set-up, used exactly as typed");
    QObject::connect(name, &QLineEdit::returnPressed, frame_, [this] { run(&Form1::Label4_Click); });
    auto* refusal = hint("SaveRefusal", [&pane] { return QString::fromStdString(pane.refusal.caption); });
    refusal->setStyleSheet(QStringLiteral("color: %1; font-weight: bold;").arg(theme::kAccent.name()));
    also([refusal, &pane] { refusal->setVisible(pane.refusal.visible); });
    auto* heading = text("Label22", pane.Label22, Tone::kQuiet);
    auto* existing =
        list("File5", "Existing files", pane.File5, &Form1::File5_Click, "Nothing has been saved yet");
    existing->setToolTip("A click takes the name over, so that the set-up is replaced");

    auto* commands = new QHBoxLayout;
    commands->addWidget(command("Label4", pane.Label4, Look::kPrimary, &Form1::Label4_Click,
                                "Saves under the name; a set-up of that name is replaced (Enter)"),
                        2);
    commands->addWidget(command("Label39", pane.Label39, Look::kButton, &Form1::Label39_Click,
                                "Closes the pane and saves nothing (Escape)"),
                        1);
    frame_->content()->addWidget(prompt);
    frame_->content()->addWidget(name);
    frame_->content()->addWidget(refusal);
    frame_->content()->addWidget(heading);
    frame_->content()->addWidget(existing, 1);
    frame_->content()->addLayout(commands);
  }
};

}  // namespace

std::unique_ptr<PaneView> save_pane_view(Form1& form, const Perform& perform, QWidget* parent) {
  return std::make_unique<SavePaneView>(form, perform, parent);
}

}  // namespace vorlund
