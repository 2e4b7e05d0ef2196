// The steps of the typical use and their screenshots.
#include "tour.h"

#include <QAbstractItemView>
#include <QElapsedTimer>
#include <QProgressBar>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <limits>
#include <stdexcept>

namespace vorlund {

namespace {

void say(const QString& line) {
  std::printf("%s\n", line.toUtf8().constData());
  std::fflush(stdout);
}

/// Takes a picture of a long action half-way through.
class WorkWatch {
 public:
  explicit WorkWatch(QWidget& window) {
    QObject::connect(&timer_, &QTimer::timeout, [this, &window] {
      const auto* bar = window.findChild<QProgressBar*>("Progress");
      if (!picture_.isNull() || bar == nullptr || !bar->isVisible()) return;
      if (2 * bar->value() > bar->maximum()) picture_ = window.grab();
    });
    timer_.start(5);
  }

  /// Null where the action was over too soon to be seen.
  const QPixmap& picture() const { return picture_; }

 private:
  QTimer timer_;
  QPixmap picture_;
};

}  // namespace

/// A folder of the game store.
struct Tour::Choice {
  QString group;
  QString folder;
};

/// The first folder that holds enough files of a kind, else the one that holds the most; none where no folder
/// holds any.
Tour::Choice Tour::folder_with(const QStringList& groups, const QString& mask, qsizetype enough) {
  Choice found;
  qsizetype most = 0;
  for (const QString& group : groups) {
    const QDir folders(QDir::current().filePath("~Vorlund/GameStore/" + group));
    for (const QString& name : folders.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
      const auto count = QDir(folders.filePath(name)).entryList({mask}, QDir::Files).size();
      if (count <= most) continue;
      most = count;
      found = {group, name};
      if (most >= enough) return found;
    }
  }
  return found;
}

Tour::Tour(MainWindow& window, const QDir& folder, int& next_number)
    : window_(window), hand_(window), folder_(folder), next_number_(next_number) {
  window_.resize(1280, 800);
  hand_.wait();
}

void Tour::use() {
  start();
  game_work();
  aircraft_work();
  other_panes();
  click("ExitButton");
}

void Tour::look_again() {
  click("Label17");
  if (hand_.sees("WhatsLoaded")) {
    click("WhatsLoaded");
    show("next-start", "The next start: \"Whats Loaded?\" shows what is installed");
  } else {
    say("  Nothing is recorded as installed.");
  }
  click("ExitButton");
}

void Tour::start() {
  show("start", "The program has started in the game folder");
  click("Label17");
  show("confirmed", "The game folder is confirmed");
}

void Tour::game_work() {
  click("Label9(1)");
  const QStringList groups = texts("Label1", 0);
  show("game-settings", "\"Make Game Settings\": the groups of the store");
  if (groups.isEmpty()) {
    say("  The store has no game sets.");
    return;
  }
  // A row is added for the last group alone; of the others only those serve that stand in the table.
  QStringList served;
  const CellTable& table = window_.form().game.G2;
  for (int row = 1; row < table.row_count(); ++row) {
    const QString group = QString::fromStdString(table.cell(row, GameTable::kGroup));
    if (groups.contains(group) && !served.contains(group)) served.append(group);
  }
  const Choice patches = folder_with(served, "*.ldr", 1);
  if (!patches.folder.isEmpty()) {
    choose_game_folder(patches, "patches");
    served.removeAll(patches.group);
  }
  const Choice large = folder_with(served, "*", std::numeric_limits<qsizetype>::max());
  if (!large.folder.isEmpty()) choose_game_folder(large, "large-set");
  choose_game_folder({groups.last(), {}}, "last-group");
  click("Label2");
  show("game-table", "\"Show Game Table\": the rows, the last to be installed at the end");
  arrange_rows();
  click("Contents(1)");
  show("game-folder",
       "\"What is in the folder?\": what \"Process!\" would do, and where each file comes from");
  click("ContentsHide");
  process_game_set();
}

void Tour::choose_game_folder(const Choice& choice, const QString& picture) {
  click_captioned("Label1", choice.group);
  show(picture + "-group", "The group \"" + choice.group + "\" and its folders");
  const QStringList folders = texts("SelLab", 0);
  const QString chosen = choice.folder.isEmpty() && !folders.isEmpty() ? folders.first() : choice.folder;
  if (!click_captioned("SelLab", chosen)) {
    say("  The group \"" + choice.group + "\" has no folders.");
    click("Label10(2)");
    return;
  }
  show(picture, "The folder \"" + chosen + "\": its picture and description");
  click("Image1");
  chosen_.append(chosen);
  show(picture + "-chosen", "A click on the picture has chosen it");
}

void Tour::arrange_rows() {
  if (texts("G2", GameTable::kFolder).size() < 3) {
    say("  The game table is too short to arrange anything.");
    return;
  }
  click_row("G2", 0);
  click("Label29");
  show("row-moved", "The first row was moved to the end, to load last");
  const QStringList folders = texts("G2", GameTable::kFolder);
  const auto spare = std::find_if(folders.begin(), folders.end(),
                                  [this](const QString& folder) { return !chosen_.contains(folder); });
  if (spare == folders.end()) return;
  click_row("G2", static_cast<int>(spare - folders.begin()));
  click("Label28");
  show("row-cleared", "The row of \"" + *spare + "\" was cleared");
}

void Tour::process_game_set() {
  const WorkWatch watch(window_);
  QElapsedTimer time;
  time.start();
  click("GameLoad");
  const qint64 took = time.elapsed();
  if (!watch.picture().isNull()) save(watch.picture(), "working", "\"Process!\" at work");
  show("installed", QString("The game set is installed (%1 ms)").arg(took));
}

void Tour::aircraft_work() {
  click("Label9(0)");
  show("aircraft-settings", "\"Make Aircraft Settings\": the groups of skins");
  if (texts("Label1", 0).isEmpty()) {
    say("  The store has no skins.");
    return;
  }
  const QString skin = choose_skin();
  click("Label2");
  show("plane-table", "\"Show Plane Table\": slots, skins and flight models");
  compose_planes(skin);
}

QString Tour::choose_skin() {
  click("Label1(0)");
  const QStringList skins = texts("SelLab", 0);
  if (skins.isEmpty()) {
    click("Label10(2)");
    return {};
  }
  click("SelLab(0)");
  show("skin", "A skin: its picture, and what its slot wears now");
  click("Image1");
  show("skin-chosen", "A click on the picture has put it into the plane table");
  return skins.first();
}

void Tour::compose_planes(const QString& skin) {
  const QStringList models = texts("List2", 0);
  const QStringList skins = texts("G1", PlaneTable::kSkinFolder);
  if (models.isEmpty() || skins.isEmpty()) {
    say("  There is no flight model, or no slot in use, to compose.");
    return;
  }
  // The flight model whose name has the longest beginning in common with the skin's.
  qsizetype fitting = 0;
  for (qsizetype length = skin.size(); length > 0 && !models[fitting].startsWith(skin.left(length));
       --length) {
    for (qsizetype index = 0; index < models.size(); ++index) {
      if (models[index].startsWith(skin.left(length))) fitting = index;
    }
  }
  click_row("G1", static_cast<int>(std::max<qsizetype>(skins.indexOf(skin), 0)));
  click("Option1(3)");
  click_row("List2", static_cast<int>(fitting));
  show("flight-model", "\"Find FM for selected slot\": the slot has a flight model");
  click("Option1(0)");
  click_row("List2", static_cast<int>(fitting));
  show("possible-skins", "\"Match skin to selected FM\": the skins that may fit it");
  if (!hand_.sees("Frame1")) click("Label2");
  click("PictureMenus");
  show("picture-menus", "\"Picture menus...\": the names in the game's three menus");
  click("PMenFrame");
  click("Label14");
  show("save", "\"Save\": the aircraft set gets a name");
  click("Label39");
  click("Label8");
  show("aircraft-installed", "The aircraft set is installed");
}

void Tour::other_panes() {
  click("Label9(2)");
  show("flight-model-groups", "\"Set the Flight Model\": the groups of flight models");
  click("Label9(3)");
  show("saved-set-ups", "\"Load saved set-ups\"");
}

void Tour::click(const QString& name) {
  hand_.click(name);
  if (window_.failed()) throw std::runtime_error("the program has ended with an error");
}

void Tour::click_row(const QString& table, int row) {
  hand_.click_row(table, row);
  if (window_.failed()) throw std::runtime_error("the program has ended with an error");
}

void Tour::show(const QString& name, const QString& what) {
  save(window_.grab(), name, what);
}

void Tour::save(const QPixmap& picture, const QString& name, const QString& what) {
  const QString file = QString("%1-%2.png").arg(next_number_++, 2, 10, QChar('0')).arg(name);
  if (!picture.save(folder_.filePath(file))) {
    throw std::runtime_error("can't write " + folder_.filePath(file).toStdString());
  }
  say(QString("  %1 %2").arg(file, -32).arg(what));
}

bool Tour::click_captioned(const QString& array, const QString& caption) {
  const qsizetype index = texts(array, 0).indexOf(caption);
  if (index >= 0) click(QString("%1(%2)").arg(array).arg(index));
  return index >= 0;
}

QStringList Tour::texts(const QString& table, int column) const {
  QStringList found;
  const auto* view = qobject_cast<QAbstractItemView*>(hand_.find(table));
  for (int row = 0; view != nullptr && row < view->model()->rowCount(); ++row) {
    found.append(view->model()->index(row, column).data().toString());
  }
  return found;
}

}  // namespace vorlund
