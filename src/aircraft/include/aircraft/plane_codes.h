// The plane code table: the game's own four-character codes of its thirty aircraft.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace vorlund {

inline constexpr int kPlaneCount = 30;

/// Lower-case codes by record number, 0 to 29. Code k belongs to row k + 1 of the plane table.
using PlaneCodes = std::array<std::string, kPlaneCount>;

/// The plane code table. Its order is the game's order of records and never changes.
PlaneCodes PlaneCodeSet();

/// Index 0 to 29 of the code that equals `code` without regard to case; -1 for no plane.
int plane_code_index(std::string_view code);

}  // namespace vorlund
