// The program's UTF-8 paths in the form that the Windows calls take.
#pragma once

#include <string>
#include <string_view>

#include "disk/file_system.h"

namespace vorlund {

/// UTF-16 of a text; "" where the text is not UTF-8. A lone surrogate spelled in three bytes is taken as
/// such, so that every name that `from_wide` gave finds its file again.
std::wstring to_wide(std::string_view text);

/// UTF-8 of a name; a lone surrogate is spelled in three bytes.
std::string from_wide(std::wstring_view wide);

/// Current folder of the process, without a trailing backslash except for a root; "", with the system's
/// error, on failure.
std::wstring current_folder_wide();

/// Absolute path in the plain form, "C:\\Games" or "\\\\server\\share\\Games": doubled separators, "." and
/// ".." are gone. "" for a path that can't name an entry of that kind: one that is empty or not UTF-8, with a
/// character that no name can hold, or a file's with a separator at its end.
std::wstring absolute_path(std::string_view path, EntryKind kind);

/// The same in the form that has no limit of 260 characters and is taken as it stands.
std::wstring long_path(std::string_view path, EntryKind kind);

}  // namespace vorlund
