// The sentence that an error report shows.
#include "base/action_error.h"

#include <gtest/gtest.h>

namespace vorlund {
namespace {

TEST(ActionError, SaysWhatWasAttemptedOnWhichPathAndWhyItFailed) {
  const ActionError error("write", "C:\\Games\\caf\u00E9\\eaw.exe", "No space left on device");
  EXPECT_STREQ(error.what(), "Could not write \"C:\\Games\\caf\u00E9\\eaw.exe\": No space left on device");
  EXPECT_EQ(error.attempted(), "write");
  EXPECT_EQ(error.path(), "C:\\Games\\caf\u00E9\\eaw.exe");
  EXPECT_EQ(error.reason(), "No space left on device");
}

}  // namespace
}  // namespace vorlund
