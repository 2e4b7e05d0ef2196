// The text of the help, and the pane that it stands in.
#include <QHBoxLayout>
#include <QTextBrowser>

#include "version.h"
#include "window/theme.h"
#include "window/views.h"

namespace vorlund {

namespace {

constexpr auto kText = R"(
<table width="100%" cellspacing="0"><tr><td width="49%" valign="top">
<h4>The way to fly</h4>
<p>Choose an entry of the menu, a group, a folder of it. "Show ... Table" shows what you have put together;
"Process!" installs it into the game folder.</p>
<h4>Mouse</h4>
<table cellspacing="3">
<tr><td>Click</td><td>does what a label says, shows a folder, selects a row</td></tr>
<tr><td>Double click</td><td>on a folder chooses it at once</td></tr>
<tr><td>Right drag</td><td>moves a label of the menu</td></tr>
<tr><td>Drag a pane's title</td><td>moves the pane</td></tr>
<tr><td>Shift and click</td><td>hides an entry of the menu until the next start</td></tr>
<tr><td>Click beside</td><td>the controls of a pane hides it, where the hand shows</td></tr>
</table>
<h4>Keys</h4>
<table cellspacing="3">
<tr><td>Tab, Shift+Tab</td><td>go through all that can be seen</td></tr>
<tr><td>Enter, Space</td><td>do what a click does</td></tr>
<tr><td>Letters</td><td>find entries of a list, a sheet or a group by any part of their names</td></tr>
<tr><td>Arrows, Page Up, Page Down, Home, End</td><td>move in tables, lists and sheets</td></tr>
<tr><td>Delete</td><td>clears the selected row; in the load pane takes a choice back</td></tr>
<tr><td>Ctrl+Z, Ctrl+Y</td><td>take back and do again what was changed in the tables, never files</td></tr>
<tr><td>Escape</td><td>empties what was typed, then leaves a picture for the sheet, then closes the pane in front</td></tr>
<tr><td>F1</td><td>shows this page</td></tr>
</table>
</td><td width="2%"></td><td width="49%" valign="top">
<h4>What "Clean Up" deletes</h4>
<p>It first brings the career saves ("c*.sve" in "Savedata") home to the folder of the "Careers" row. Then it
deletes the loose files that sets install into the game folder itself: *.dat, *.pal, *.tpc, *.3dz, *.flt, *.mnu,
*.str, *.spt, *.pic, *.pcx, *.snd, *.bgm, *.txt and their like. The game's own DSG.ICO, EXTRA.SPT, CHATLINE.TXT
and HOF.DAT stay, and so does all in the store. Both tables are emptied.</p>
<h4>The columns of the aircraft table</h4>
<table cellspacing="3">
<tr><td>Slot</td><td>the game's code of the aircraft that is replaced</td></tr>
<tr><td>Region, SkinFolder</td><td>where the skin lies in "SkinStore"</td></tr>
<tr><td>PlnDat</td><td>number of the aircraft's record in the game's files, 0 to 29</td></tr>
<tr><td>ScriptFolder</td><td>the flight model: a folder of the flight-model group</td></tr>
<tr><td>PName$</td><td>the name that the game shows</td></tr>
</table>
<h4>About</h4>
<p>Vorlund %1 is free software under the MIT License. It uses Qt under the GNU Lesser General Public License,
version 3; the licences come with the program.</p>
</td></tr></table>)";

/// View of HelpPane.
class HelpView : public PaneView {
 public:
  HelpView(Form1& form, const Perform& perform, QWidget* parent) : PaneView(form, perform) {
    clicked_frame("HelpFrame", form.help.HelpFrame, parent, &Form1::HelpFrame_Click);
    auto* page = new QTextBrowser(frame_);
    page->setObjectName("HelpText");
    page->setAccessibleName("Help");
    page->setToolTip("Arrow keys and the wheel scroll the page");
    page->setOpenLinks(false);
    page->setTabChangesFocus(true);
    page->setAttribute(Qt::WA_NoMousePropagation);
    theme::keep_font(*page);
    page->setHtml(QString(kText).arg(
        QStringLiteral("%1.%2.%3").arg(kVersionMajor).arg(kVersionMinor).arg(kVersionRevision)));
    auto* foot = new QHBoxLayout;
    foot->addStretch(1);
    foot->addWidget(command("HelpHide", form.help.HelpHide, Look::kButton, &Form1::HelpFrame_Click,
                            "Hides the help (Escape)"));
    frame_->content()->addWidget(page, 1);
    frame_->content()->addLayout(foot);
  }
};

}  // namespace

std::unique_ptr<PaneView> help_view(Form1& form, const Perform& perform, QWidget* parent) {
  return std::make_unique<HelpView>(form, perform, parent);
}

}  // namespace vorlund
