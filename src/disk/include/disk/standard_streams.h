// The three descriptors that a program finds open when it is started, as a rule.
#pragma once

namespace vorlund {

/// Lets the program write to standard error whatever has become of it: a pipe that nobody reads no longer
/// ends the program, and a descriptor that was closed leads nowhere, instead of into a file that is opened
/// later. To be called before any file is opened.
void keep_standard_streams();

}  // namespace vorlund
