// The one window object: it composes the panes and carries what crosses from one to another.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "aircraft/plane_pane.h"
#include "core/environment.h"
#include "core/picture.h"
#include "gamesets/game_pane.h"
#include "menus/menu_editor.h"
#include "models/flight_model_browser.h"
#include "models/possible_skins.h"
#include "models/selection_pane.h"
#include "setups/load_pane.h"
#include "setups/save_pane.h"

namespace vorlund {

/// The version shown, major.minor.revision.
struct Version {
  int major = 0;
  int minor = 0;
  int revision = 0;
};

/// State of the main window and its event handlers, without any widget. The window that shows it applies this
/// state after every event and hands events back. A handler that fails throws ActionError; the program
/// then ends.
class Form1 {
 private:
  /// Keeps the text for the status line and hands everything else on to the window.
  class StatusLineWriter : public Status {
   public:
    StatusLineWriter(Label& line, Status& window) : line_(line), window_(window) {}
    void repaint() override { window_.repaint(); }
    void progress(const Progress& progress) override { window_.progress(progress); }
    void pulse() override { window_.pulse(); }
    void outcome(std::string_view text) override { line_.caption = text; }

   private:
    Label& line_;
    Status& window_;
  };

  FrameOrder frames_;
  SharedLabels labels_;
  Label status_line_;
  StatusLineWriter status_;

 public:
  /// `window` is told of repaints and progress while an action runs. Both outlive the object.
  Form1(FileSystem& files, Status& window, Version version);

  GameDirectory directory;
  Environment environment;

  GamePane game;
  MenuEditor menu_editor;
  PlanePane plane;
  FlightModelLists lists;
  SelectionPane selection;
  PossibleSkins possible_skins;
  FlightModelBrowser browser;
  SavePane save_pane;
  LoadPane load_pane;

  Place place{1000, 1000, 0, 0};  ///< where the window stands on the screen
  Picture background;             ///< picture of the main window
  Label Label6;                   ///< title; a click hides it and the version
  Label Label26;                  ///< version
  std::array<Label, 4> Label9;    ///< the main menu
  Label WhatsLoaded{"Whats Loaded?", false};
  Label DelMSN{"Delete \"Default.msn\" files from \"Savedata\""};
  Label Label18{"Fly!"};
  Label Label5{"Clean Up"};
  Label Label7{"Minimise"};
  Label ExitButton{"Exit"};
  Frame InviFrame;      ///< never shown: holds the listings that the program works with
  FileList SavDatFile;  ///< "Default*.msn" in "Savedata"
  FolderList UtilDir;   ///< beside the other listings; no action needs it

  /// What the last action has come to, in plain words.
  const Label& status_line() const { return status_line_; }
  SharedLabels& labels() { return labels_; }

  bool minimise_wanted = false;  ///< the window is to be minimised once; whoever does it resets this
  bool ended = false;            ///< the program is to end

  /// Start-up: pictures, tables from the records of what is installed, listings, skin list, version.
  void Form_Load();

  // Common dragging of labels: the right button moves, the left button commands.
  void Label_MouseDown(const MouseEvent& event);
  void Label9_MouseUp(int index, const MouseEvent& event);
  void Label18_MouseUp(const MouseEvent& event);
  void DelMSN_MouseUp(const MouseEvent& event);
  void Label5_MouseUp(const MouseEvent& event);
  void Label7_MouseUp(const MouseEvent& event);
  void ExitButton_MouseUp(const MouseEvent& event);
  void Form_MouseDown(const MouseEvent& event);
  void Form_MouseUp(const MouseEvent& event);
  void Label6_MouseUp();

  void WhatsLoaded_Click();

  // Handlers whose work crosses panes. Those that change a table mark the selections in use anew.
  void Label17_Click();
  void Label19_Click();
  void Label3_Click();
  void Label28_Click();
  void Label29_Click();
  void Image4_Click();
  void SelLab_DblClick();
  void Image1_Click();

  /// Deletes the "Default*.msn" files of "Savedata".
  void delete_default_missions();

  /// Brings career saves home, deletes installed loose files and empties both tables and records.
  void CleanUp();

 private:
  void open_aircraft_work();
  void open_game_work();
  void open_flight_model_choice();
  void start_game();

  /// Says in the status line what to do next, or that the folder of the store holds nothing to do it with.
  void say_next(const FolderList& groups, std::string_view store, std::string_view next);
  bool dragged(const MouseEvent& event, Label& label);

  /// Runs what may change the tables. Then the selections in use are marked anew, and where career saves
  /// would now go home to another folder the status line says so.
  void change_tables(const std::function<void()>& change);

  Version version_;
  DragOrigin drag_;
};

}  // namespace vorlund
