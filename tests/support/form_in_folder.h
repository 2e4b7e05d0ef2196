// The window object at work in a made folder, composed as the program composes it.
#pragma once

#include <memory>
#include <string>

#include "panes/form1.h"
#include "support/recording_status.h"
#include "support/temporary_folder.h"

namespace vorlund::test {

/// A Form1 whose game directory is a folder; start-up has not been run.
class FormInFolder {
 public:
  FormInFolder(FileSystem& files, const std::string& folder) : form(files, status, Version{1, 0, 60}) {
    form.desk.directory.Label16.caption = folder;
  }

  /// What the status line says.
  [[nodiscard]] const std::string& said() const { return form.desk.status_line.caption; }

  RecordingStatus status;
  Form1 form;
};

}  // namespace vorlund::test
