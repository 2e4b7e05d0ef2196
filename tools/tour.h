// The typical use of the program, gone through without hands.
#pragma once

#include <QDir>
#include <QPixmap>
#include <QString>
#include <QStringList>

#include "hand.h"
#include "window/main_window.h"

namespace vorlund {

/// Goes through the window step by step, saving a numbered screenshot after each. Steps that the game folder
/// has nothing for are left out, and it says so. Throws std::runtime_error where a step fails.
class Tour {
 public:
  /// Screenshots go into `folder`, numbered from `next_number` on.
  Tour(MainWindow& window, const QDir& folder, int& next_number);

  /// From the start to an installed game set, an installed aircraft set and the saved set-ups; ends with
  /// "Exit".
  void use();

  /// What the next start shows; ends with "Exit".
  void look_again();

 private:
  struct Choice;
  static Choice folder_with(const QStringList& groups, const QString& mask, qsizetype enough);

  void start();
  void game_work();
  void choose_game_folder(const Choice& choice, const QString& picture);
  void arrange_rows();
  void process_game_set();
  void aircraft_work();
  QString choose_skin();
  void compose_planes(const QString& skin);
  void other_panes();

  void click(const QString& name);
  void click_row(const QString& table, int row);
  void show(const QString& name, const QString& what);
  void save(const QPixmap& picture, const QString& name, const QString& what);

  /// Clicks the element of a control array with that caption; false when there is none.
  bool click_captioned(const QString& array, const QString& caption);

  /// The texts of a column of a table or list, those of the shown rows.
  QStringList texts(const QString& table, int column) const;

  MainWindow& window_;
  Hand hand_;
  QDir folder_;
  int& next_number_;
  QStringList chosen_;  ///< game folders chosen so far
};

}  // namespace vorlund
