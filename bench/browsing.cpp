// States how long groups of many folders take to their first painted frame, what memory they take over the
// idle program, how fast the sheet of 2,000 skins with pictures of 4 MB shows its tiles and scrolls, and how
// fast 20,000 lines of the contents pane scroll.
#include <QAbstractItemView>
#include <QApplication>
#include <QImage>
#include <QProcess>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "measure.h"
#include "memory.h"
#include "window/application.h"
#include "window/contact_sheet.h"
#include "window/main_window.h"

namespace {

using namespace vorlund;
using namespace vorlund::bench;
namespace fs = std::filesystem;

constexpr int kRounds = 5;
constexpr int kSkins = 2'000;
constexpr int kFoldersOfGroups[] = {1'000, 20'000, 40'000};
constexpr int kLines = 20'000;
constexpr int kScrolledFrames = 100;

void paint(QWidget& window) {
  window.repaint();
  QCoreApplication::processEvents();
}

std::string group_name(int folders) {
  return "Group of " + std::to_string(folders);
}

/// A picture of about 4 MB, as a camera would take it.
void write_picture(const fs::path& path) {
  QImage picture(2600, 1950, QImage::Format_RGB32);
  auto* numbers = QRandomGenerator::global();
  for (int row = 0; row < picture.height(); ++row) {
    auto* pixels = reinterpret_cast<QRgb*>(picture.scanLine(row));
    for (int column = 0; column < picture.width(); ++column) {
      const int noise = numbers->bounded(48);
      pixels[column] = qRgb(column / 12 + noise / 2, row / 9 + noise / 2, 60 + noise);
    }
  }
  if (!picture.save(QString::fromStdString(path.string()), "jpg", 96)) qFatal("no picture can be written");
}

void make_store(const fs::path& game) {
  const fs::path store = game / "~Vorlund";
  for (const int folders : kFoldersOfGroups) {
    for (int folder = 0; folder < folders; ++folder) {
      fs::create_directories(store / "GameStore" / group_name(folders) /
                             ("Folder " + std::to_string(folder)));
    }
  }
  const fs::path set = store / "GameStore" / "Lines" / "Many";
  fs::create_directories(set);
  for (int file = 0; file < kLines; ++file) std::ofstream(set / ("File " + std::to_string(file) + ".dat"));
  std::ofstream(store / "CurrentGameSet.txt") << "Folder group\tFolder name\r\nLines\tMany\r\n";
  const fs::path picture = game / "picture";
  write_picture(picture);
  for (int skin = 0; skin < kSkins; ++skin) {
    const fs::path folder = store / "SkinStore" / "Skins" / ("Spitfire " + std::to_string(skin));
    fs::create_directories(folder);
    fs::create_hard_link(picture, folder / "mypic");
  }
}

/// Mode of a child process: opens one group of the game store for the first time.
int open_group(int argc, char** argv) {
  const QString wanted = argv[2];
  return run_application(argc, argv, [&wanted](MainWindow& window) {
    Form1& form = window.form();
    window.perform([&] { form.Label9_MouseUp(1, MouseEvent()); });
    paint(window);
    const double idle = resident_megabytes();
    int index = 0;
    while (form.selection.Label1[static_cast<std::size_t>(index)].caption != wanted.toStdString()) ++index;
    const double seconds = seconds_of([&] {
      window.perform([&] { form.Label1_Click(index); });
      paint(window);
    });
    std::printf("%.1f %.1f\n", 1000 * seconds, resident_megabytes() - idle);
    form.ended = true;
  });
}

/// Seconds of each frame while a list or table is scrolled step by step.
std::vector<double> scroll(MainWindow& window, const QAbstractItemView& view) {
  std::vector<double> frames;
  QScrollBar* bar = view.verticalScrollBar();
  for (int step = 0; step < kScrolledFrames; ++step) {
    frames.push_back(seconds_of([&] {
      bar->setValue(bar->value() + bar->singleStep());
      paint(window);
    }));
  }
  return frames;
}

/// Mode of a child process: looks into the game folder and scrolls through what there would be.
int scroll_lines(int argc, char** argv) {
  return run_application(argc, argv, [](MainWindow& window) {
    Form1& form = window.form();
    window.perform([&] { form.Contents_Click(); });
    paint(window);
    const auto* table = window.findChild<QAbstractItemView*>("ContentsTable");
    if (table->model()->rowCount() < kLines) qFatal("not every line is shown");
    const std::vector<double> frames = scroll(window, *table);
    std::printf("%.1f %.1f\n", 1000 * median(frames), 1000 * *std::max_element(frames.begin(), frames.end()));
    form.ended = true;
  });
}

/// True when every tile that is seen has its picture.
bool is_complete(const ContactSheet& sheet) {
  const QRect seen = sheet.viewport()->rect();
  for (int row = 0; row < sheet.entries().rowCount(); ++row) {
    const QModelIndex index = sheet.entries().index(row);
    if (sheet.visualRect(index).intersects(seen) && sheet.tile(index) == nullptr) return false;
  }
  return true;
}

/// Mode of a child process: opens the group of skins and scrolls through its sheet.
int browse_skins(int argc, char** argv) {
  return run_application(argc, argv, [](MainWindow& window) {
    Form1& form = window.form();
    window.perform([&] { form.Label9_MouseUp(0, MouseEvent()); });
    paint(window);
    const double idle = resident_megabytes();
    const auto* sheet = dynamic_cast<ContactSheet*>(window.findChild<QWidget*>("Sheet"));
    double frame = 0;
    const double screen = seconds_of([&] {
      frame = seconds_of([&] {
        window.perform([&] { form.Label1_Click(0); });
        static_cast<QWidget&>(window).repaint();
      });
      while (!is_complete(*sheet)) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    });
    const std::vector<double> frames = scroll(window, *sheet);
    std::printf("%.1f %.1f %.1f %.1f %.1f\n", 1000 * frame, 1000 * screen, 1000 * median(frames),
                1000 * *std::max_element(frames.begin(), frames.end()), resident_megabytes() - idle);
    form.ended = true;
  });
}

/// Runs this program in a mode of its own, several times; returns the medians of the numbers it printed.
std::vector<double> medians_of(const QStringList& mode, const QString& game) {
  std::vector<std::vector<double>> numbers;
  for (int round = 0; round <= kRounds; ++round) {
    QProcess child;
    child.setWorkingDirectory(game);
    child.start(QCoreApplication::applicationFilePath(), mode);
    if (!child.waitForFinished(120'000) || child.exitCode() != 0) qFatal("the child process failed");
    const QList<QByteArray> words = child.readAllStandardOutput().trimmed().split(' ');
    numbers.resize(static_cast<std::size_t>(words.size()));
    if (round == 0) continue;  // warms the caches
    for (qsizetype word = 0; word < words.size(); ++word) {
      numbers[static_cast<std::size_t>(word)].push_back(words[word].toDouble());
    }
  }
  std::vector<double> medians;
  for (const auto& values : numbers) medians.push_back(median(values));
  return medians;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const std::string_view mode = argc > 1 ? argv[1] : "";
  if (mode == "--group") return open_group(argc, argv);
  if (mode == "--skins") return browse_skins(argc, argv);
  if (mode == "--lines") return scroll_lines(argc, argv);

  const QCoreApplication application(argc, argv);
  const QTemporaryDir game;
  make_store(fs::path(game.path().toStdString()));
  for (const int folders : kFoldersOfGroups) {
    const auto figures = medians_of({"--group", QString::fromStdString(group_name(folders))}, game.path());
    std::printf("first opening of a group of %d folders: %.0f ms to the painted frame, %.0f MiB over idle\n",
                folders, figures[0], figures[1]);
  }
  const auto figures = medians_of({"--skins"}, game.path());
  std::printf(
      "%d skins with pictures of 4 MB: plates with names after %.0f ms, all pictures of the screen "
      "after %.0f ms\n",
      kSkins, figures[0], figures[1]);
  std::printf("a frame while scrolling: %.1f ms, the slowest of %d %.1f ms; %.0f MiB over idle\n", figures[2],
              kScrolledFrames, figures[3], figures[4]);
  const auto lines = medians_of({"--lines"}, game.path());
  std::printf("a frame while scrolling %d lines of the contents pane: %.1f ms, the slowest of %d %.1f ms\n",
              kLines, lines[0], kScrolledFrames, lines[1]);
  return 0;
}
