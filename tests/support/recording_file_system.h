// A file system that keeps a log of what is asked of it, so that tests can check the access pattern.
#pragma once

#include <string>
#include <vector>

#include "support/forwarding_file_system.h"

namespace vorlund::test {

/// Logs every operation, also one that then fails, and hands it on.
///
/// The texts are: "find the current folder", "file exists P", "folder exists P", "file is there P", "lies
/// inside R: P", "list P", "read P", "replace P", "copy P -> Q", "remove P", "start P in Q", "lock
/// P, Q", "begin action"
/// and "end action"; "replace" and "copy" end in " (flushed)" where the file is flushed.
class RecordingFileSystem : public ForwardingFileSystem {
 public:
  using ForwardingFileSystem::ForwardingFileSystem;

  const std::vector<std::string>& log() const { return log_; }

  /// The operations of the log that change the disk or start a program.
  const std::vector<std::string>& changes() const { return changes_; }

  void clear();

 protected:
  bool before(const Operation& operation) override;
  void begin_action(Pulse pulse, std::string_view staging) override;
  void end_action() override;

 private:
  std::vector<std::string> log_;
  std::vector<std::string> changes_;
};

}  // namespace vorlund::test
