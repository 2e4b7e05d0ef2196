// One installation of a game set as the program does it, and the same work by others.
#pragma once

#include <cstdint>
#include <filesystem>

namespace vorlund::bench {

/// A folder on the disk to be measured that holds a game directory with one set in its store, and a second
/// folder for what it is measured against. What is made beforehand is not measured.
class GameInstall {
 public:
  /// `root` is made anew. The set holds `files` files of `bytes` bytes each.
  GameInstall(std::filesystem::path root, std::uint64_t files, std::uint64_t bytes);
  ~GameInstall();
  GameInstall(const GameInstall&) = delete;
  GameInstall& operator=(const GameInstall&) = delete;

  /// What stands in the two target folders before a measurement.
  enum class Targets {
    kEmpty,      ///< nothing
    kDifferent,  ///< files of the set's names and sizes with other bytes
    kSame,       ///< the set's own files
    kOthers,     ///< as many files of other names
  };

  /// What the program is measured against.
  enum class Reference {
    kCommand,    ///< the system's own command for copying a folder
    kCopying,    ///< a plain loop that writes each file beside its place and renames it
    kComparing,  ///< a plain loop that opens and compares both files
  };

  /// Prepares the program's and the reference's target folder and writes everything out to the disk.
  void prepare_program(Targets targets) const;
  void prepare_reference(Targets targets) const;

  /// Installs the set; returns the seconds it took. Throws where not every file was dealt with.
  double run_program() const;

  /// Foretells the installation of the set, every file's net change included; returns the seconds it took.
  double run_forecast() const;

  /// Does the same work with the reference; returns the seconds it took.
  double run_reference(Reference reference) const;

 private:
  void prepare(const std::filesystem::path& target, Targets targets) const;
  void write_files(const std::filesystem::path& folder, const char* prefix, unsigned seed) const;
  void empty(const std::filesystem::path& target) const;

  std::filesystem::path root_;
  std::filesystem::path game_;
  std::filesystem::path set_;
  std::filesystem::path reference_;
  std::uint64_t files_;
  std::uint64_t bytes_;
};

}  // namespace vorlund::bench
