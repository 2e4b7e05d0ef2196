// The deleting of what writes that were cut off have left in a folder on Windows.
#pragma once

#include <string>
#include <string_view>

namespace vorlund {

/// Deletes the files of the form of `staging_name` for whose name `goes` is true. Such that can't be deleted
/// stay. `folder` is a full path with a backslash at its end.
void delete_matching(const std::wstring& folder, bool (*goes)(std::string_view name));

}  // namespace vorlund
