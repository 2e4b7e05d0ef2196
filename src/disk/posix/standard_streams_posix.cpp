// Opens what is closed, and ignores the signal of a broken pipe.
#include <fcntl.h>
#include <unistd.h>

#include <csignal>

#include "disk/standard_streams.h"

namespace vorlund {

void keep_standard_streams() {
  ::signal(SIGPIPE, SIG_IGN);
  // The lowest free number is given first.
  int opened = -1;
  do {
    opened = ::open("/dev/null", O_RDWR);
  } while (opened >= 0 && opened <= STDERR_FILENO);
  if (opened >= 0) ::close(opened);
}

}  // namespace vorlund
