// Every fixed name of the store and of the game directory, as it is appended to the game directory.
#pragma once

#include <string_view>

namespace vorlund {

inline constexpr std::string_view kStore = "\\~Vorlund";
inline constexpr std::string_view kGameStore = "\\~Vorlund\\GameStore";
inline constexpr std::string_view kCareersStore = "\\~Vorlund\\GameStore\\Careers";
inline constexpr std::string_view kSkinStore = "\\~Vorlund\\SkinStore";
inline constexpr std::string_view kSkinList = "\\~Vorlund\\SkinStore\\SkinList.txt";
inline constexpr std::string_view kFlightModels = "\\~Vorlund\\FlightModels";
inline constexpr std::string_view kGameSetFiles = "\\~Vorlund\\GameSetFiles";
inline constexpr std::string_view kPlaneSetFiles = "\\~Vorlund\\PlaneSetFiles";
inline constexpr std::string_view kCurrentGameSet = "\\~Vorlund\\CurrentGameSet.txt";
inline constexpr std::string_view kCurrentPlaneSet = "\\~Vorlund\\CurrentPlaneSet.txt";

// Pictures without an extension: of two panes, of the main window, and the one shown where a folder has none.
inline constexpr std::string_view kFormPicture = "\\~Vorlund\\FormPic";
inline constexpr std::string_view kWindowPicture = "\\~Vorlund\\Fr2Pic";
inline constexpr std::string_view kDefaultPicture = "\\~Vorlund\\SelPic";

inline constexpr std::string_view kGameProgram = "\\eaw.exe";
inline constexpr std::string_view kSavedata = "\\Savedata";
inline constexpr std::string_view kMusic = "\\Music";
inline constexpr std::string_view kPlanesData = "\\Planes.dat";
inline constexpr std::string_view kLoadoutData = "\\loadout.dat";
inline constexpr std::string_view kPilotNames = "\\pnames.str";
inline constexpr std::string_view kBritishPictureMenu = "\\picplnb.mnu";
inline constexpr std::string_view kAmericanPictureMenu = "\\picplna.mnu";
inline constexpr std::string_view kGermanPictureMenu = "\\picplng.mnu";

/// Files of a store folder that hold its picture: the first by name is shown.
inline constexpr std::string_view kPicturePattern = "mypic;skinpic;*.jpg;*.bmp";

/// Description of a store folder, directly inside it.
inline constexpr std::string_view kDescription = "\\contents.txt";

}  // namespace vorlund
