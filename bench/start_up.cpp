// Measures start-up to the first painted window, over a store of 10,000 skins and 2,000 game folders, against
// an empty window and `find` over the same skins; then states the milliseconds of the browsing actions.
#include <QApplication>
#include <QImage>
#include <QProcess>
#include <QWidget>
#include <cstdio>
#include <string_view>

#include "measure.h"
#include "memory.h"
#include "skin_store.h"
#include "window/application.h"
#include "window/main_window.h"

namespace {

using namespace vorlund;
using namespace vorlund::bench;

constexpr int kSkins = 10'000;
constexpr int kGameGroups = 2;
constexpr int kFoldersOfGameGroup = 1'000;
constexpr int kRounds = 9;

void paint(QWidget& window) {
  window.repaint();
  QCoreApplication::processEvents();
}

/// Mode of a child process: an empty window, painted once.
int show_empty_window(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.resize(1280, 800);
  window.show();
  paint(window);
  return 0;
}

/// Mode of a child process: the program, painted once.
int show_program(int argc, char** argv) {
  return run_application(argc, argv, [](MainWindow& window) {
    paint(window);
    std::printf("%.1f\n", resident_megabytes());
    window.form().ended = true;
  });
}

/// Runs this program again in a mode of its own; returns what it printed.
QByteArray run_mode(const QString& self, const char* mode, const std::string& folder) {
  QProcess child;
  child.setWorkingDirectory(QString::fromStdString(folder));
  child.start(self, {mode});
  if (!child.waitForFinished(120'000) || child.exitCode() != 0) qFatal("the child process failed");
  return child.readAllStandardOutput();
}

void run_find(const SkinStore& store) {
  QProcess find;
  find.setStandardOutputFile(QProcess::nullDevice());
  find.start("find", {QString::fromStdString(store.store().string())});
  if (!find.waitForFinished(120'000)) qFatal("find failed");
}

void measure_start_up(const QString& self, const SkinStore& store) {
  const std::string game = store.game_directory();
  std::vector<double> program;
  std::vector<double> reference;
  QByteArray memory;
  for (int round = 0; round <= kRounds; ++round) {
    const double shown = seconds_of([&] { memory = run_mode(self, "--program", game); });
    const double empty = seconds_of([&] {
      run_mode(self, "--empty", game);
      run_find(store);
    });
    if (round == 0) continue;  // warms the caches
    program.push_back(shown);
    reference.push_back(empty);
  }
  std::printf("start-up to the first painted window: %.0f ms, %.2f of an empty window and find (%.0f ms)\n",
              1000 * median(program), median_ratio(program, reference), 1000 * median(reference));
  std::printf("memory at rest: %s MiB\n", memory.trimmed().constData());
}

/// Milliseconds of one action with the repaint of the window after it: the first time, which makes the
/// widgets, and the median of the rounds after it.
void state_time(const char* what, MainWindow& window, const std::function<void()>& action) {
  std::vector<double> times;
  for (int round = 0; round <= kRounds; ++round) {
    times.push_back(seconds_of([&] {
      window.perform(action);
      paint(window);
    }));
  }
  const double first = times.front();
  times.erase(times.begin());
  std::printf("%s: %.1f ms, %.1f ms the first time\n", what, 1000 * median(times), 1000 * first);
}

/// Gives the first two skins of the first group, by name, pictures far larger than any screen.
void paint_large_pictures(const SkinStore& store) {
  QImage picture(8000, 8000, QImage::Format_RGB32);
  for (int row = 0; row < picture.height(); ++row) {
    auto* pixels = reinterpret_cast<QRgb*>(picture.scanLine(row));
    for (int column = 0; column < picture.width(); ++column) {
      pixels[column] = qRgb(row / 32, column / 32, (row ^ column) & 0xFF);
    }
  }
  const QString group = QString::fromStdString((store.store() / "Group 0").string());
  const bool saved =
      picture.save(group + "/Skin 0/mypic", "jpg") && picture.save(group + "/Skin 1/mypic", "bmp");
  if (!saved) qFatal("the pictures can't be written");
}

int measure_actions(int argc, char** argv) {
  return run_application(argc, argv, [](MainWindow& window) {
    Form1& form = window.form();
    const MouseEvent click;
    window.perform([&] { form.Label9_MouseUp(1, click); });
    state_time("opening a group of 1,000 folders", window, [&] { form.Label1_Click(0); });
    window.perform([&] { form.Frame3_Click(); });
    window.perform([&] { form.Label9_MouseUp(0, click); });
    window.perform([&] { form.Label1_Click(0); });
    state_time("showing a picture of 8,000 x 8,000, jpg", window, [&] { form.SelLab_Click(0); });
    state_time("showing a picture of 8,000 x 8,000, bmp", window, [&] { form.SelLab_Click(1); });
    state_time("showing a skin", window, [&] { form.SelLab_Click(2); });
    state_time("choosing a skin", window, [&] { form.selection.DoSel(); });
    window.perform([&] { form.Label2_Click(); });
    state_time("g1update", window, [&] { form.plane.G1.g1update(); });
    form.ended = true;
  });
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const std::string_view mode = argc > 1 ? argv[1] : "";
  if (mode == "--empty") return show_empty_window(argc, argv);
  if (mode == "--program") return show_program(argc, argv);
  if (mode == "--actions") return measure_actions(argc, argv);

  const QCoreApplication application(argc, argv);
  const SkinStore store(kSkins);
  paint_large_pictures(store);
  const std::filesystem::path game_store = store.store().parent_path() / "GameStore";
  for (int folder = 0; folder < kGameGroups * kFoldersOfGameGroup; ++folder) {
    std::filesystem::create_directories(game_store /
                                        ("Group " + std::to_string(folder / kFoldersOfGameGroup)) /
                                        ("Folder " + std::to_string(folder % kFoldersOfGameGroup)));
  }
  const QString self = QCoreApplication::applicationFilePath();
  measure_start_up(self, store);
  std::printf("%s", run_mode(self, "--actions", store.game_directory()).constData());
  return 0;
}
