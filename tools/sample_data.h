// What the sample folder is made from: the tables and the pictures that stand in sample_game/.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vorlund::sample {

/// One aircraft of the game; its index in the table is its record number. Side, role and flyable are spelt as
/// the records of aircraft sets spell them.
struct AircraftType {
  std::string file;  ///< the code as the store's modellers spell it, the stem of their files
  std::string code;  ///< the same in upper case
  std::string name;  ///< also the name of its flight-model folders
  std::string side;
  std::string role;
  std::string flyable;
  int fuel = 0;
  int load_outs = 0;  ///< records in the first area of loadout.dat
};

const std::vector<AircraftType>& aircraft_types();

/// A section of the store's table: a folder of the store or a record.
struct StoreEntry {
  std::string path;     ///< below "~Vorlund/"
  std::string picture;  ///< name of the picture file, "" for none
  std::string motif;    ///< which picture it is
  std::vector<std::string> files;
  std::vector<std::string> lines;  ///< of the description or the record

  bool is_in(std::string_view folder) const { return path.starts_with(folder); }
};

const std::vector<StoreEntry>& store_entries();

/// The entry of that path, which must be there.
const StoreEntry& store_entry(std::string_view path);

/// A picture's bytes in the format that its file's name asks for: ".bmp" a bitmap, a bare "SkinPic" PNG, any
/// other name JPEG. Throws std::runtime_error where there is no such picture.
std::string picture_bytes(std::string_view motif, std::string_view file);

}  // namespace vorlund::sample
