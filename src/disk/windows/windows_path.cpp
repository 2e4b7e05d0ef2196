// Makes paths absolute and clean, because the long form is taken by Windows without any further look.
#include "windows/windows_path.h"

#include <windows.h>

#include <algorithm>

#include "base/utf8.h"

namespace vorlund {

namespace {

constexpr std::wstring_view kLongForm = L"\\\\?\\";
constexpr std::wstring_view kLongShareForm = L"\\\\?\\UNC\\";
constexpr std::wstring_view kShareForm = L"\\\\";

/// The lone surrogate that three bytes spell right after the first of them was read; 0 where they spell none.
char32_t lone_surrogate(std::string_view text, std::size_t after_first) {
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  if (after_first + 2 > text.size() || byte(after_first - 1) != 0xED) return 0;
  const unsigned char second = byte(after_first);
  const unsigned char third = byte(after_first + 1);
  if (second < 0xA0 || second > 0xBF || (third & 0xC0) != 0x80) return 0;
  return 0xD000U | ((second & 0x3FU) << 6) | (third & 0x3FU);
}

void append_wide(std::wstring& wide, char32_t character) {
  if (character < 0x10000) {
    wide.push_back(static_cast<wchar_t>(character));
    return;
  }
  wide.push_back(static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10)));
  wide.push_back(static_cast<wchar_t>(0xDC00 + ((character - 0x10000) & 0x3FF)));
}

bool is_drive(std::wstring_view path) {
  const auto letter = [](wchar_t character) {
    return (character >= L'A' && character <= L'Z') || (character >= L'a' && character <= L'z');
  };
  return path.size() >= 2 && path[1] == L':' && letter(path[0]);
}

/// Takes the next part off a path with backslashes alone; empty parts are passed over.
std::wstring_view take_part(std::wstring_view& path) {
  path.remove_prefix(std::min(path.find_first_not_of(L'\\'), path.size()));
  const std::wstring_view part = path.substr(0, path.find(L'\\'));
  path.remove_prefix(part.size());
  return part;
}

bool can_be_name(std::wstring_view part) {
  for (const wchar_t character : part) {
    if (character < 0x20) return false;
  }
  return part.find_first_of(L":*?\"<>|") == std::wstring_view::npos;
}

/// Takes the root off an absolute path: "C:" or "\\server\share"; "" where it has none.
std::wstring take_root(std::wstring_view& path) {
  bool share = false;
  if (path.starts_with(kLongShareForm)) {
    path.remove_prefix(kLongShareForm.size());
    share = true;
  } else if (path.starts_with(kLongForm)) {
    path.remove_prefix(kLongForm.size());
  } else if (path.starts_with(kShareForm)) {
    path.remove_prefix(kShareForm.size());
    share = true;
  }
  if (share) {
    const std::wstring_view server = take_part(path);
    const std::wstring_view name = take_part(path);
    if (server.empty() || name.empty() || !can_be_name(server) || !can_be_name(name)) return {};
    return std::wstring(kShareForm).append(server).append(L"\\").append(name);
  }
  // "C:" and "C:name" would start at a folder that Windows remembers for each drive: nothing the program
  // forms.
  if (!is_drive(path) || path.size() < 3 || path[2] != L'\\') return {};
  std::wstring root(path.substr(0, 2));
  path.remove_prefix(2);
  return root;
}

/// Adds the parts of a path to a root or folder without a backslash at its end; false where one is no name.
bool add_parts(std::wstring& absolute, std::size_t root_size, std::wstring_view path) {
  for (std::wstring_view part = take_part(path); !part.empty(); part = take_part(path)) {
    if (part == L".") continue;
    if (part == L"..") {
      if (absolute.size() > root_size) absolute.resize(absolute.rfind(L'\\'));
      continue;
    }
    if (!can_be_name(part)) return false;
    absolute.append(L"\\").append(part);
  }
  return true;
}

}  // namespace

std::wstring to_wide(std::string_view text) {
  std::wstring wide;
  for (std::size_t at = 0; at < text.size();) {
    char32_t character = next_character(text, at);
    if (character >= kStrayByte) {
      character = lone_surrogate(text, at);
      if (character == 0) return {};
      at += 2;
    }
    append_wide(wide, character);
  }
  return wide;
}

std::string from_wide(std::wstring_view wide) {
  std::string text;
  for (std::size_t at = 0; at < wide.size(); ++at) {
    char32_t character = static_cast<char16_t>(wide[at]);
    const bool high = character >= 0xD800 && character < 0xDC00;
    if (high && at + 1 < wide.size() && wide[at + 1] >= 0xDC00 && wide[at + 1] < 0xE000) {
      const char32_t low = static_cast<char16_t>(wide[++at]);
      character = 0x10000 + ((character - 0xD800) << 10) + (low - 0xDC00);
    }
    append_character(text, character);
  }
  return text;
}

std::wstring current_folder_wide() {
  std::wstring folder(GetCurrentDirectoryW(0, nullptr), L'\0');
  folder.resize(GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data()));
  while (folder.size() > 3 && folder.back() == L'\\') folder.pop_back();
  return folder;
}

std::wstring absolute_path(std::string_view path, EntryKind kind) {
  std::wstring wide = to_wide(path);
  std::replace(wide.begin(), wide.end(), L'/', L'\\');
  if (wide.empty() || (kind == EntryKind::kFile && wide.back() == L'\\')) return {};

  std::wstring_view rest = wide;
  std::wstring absolute = take_root(rest);
  if (absolute.empty() && (is_drive(wide) || wide.starts_with(kShareForm))) return {};
  std::size_t root_size = absolute.size();
  if (absolute.empty()) {
    const std::wstring current = current_folder_wide();
    std::wstring_view below = current;
    absolute = take_root(below);
    root_size = absolute.size();
    if (absolute.empty() || (wide.front() != L'\\' && !add_parts(absolute, root_size, below))) return {};
  }
  if (!add_parts(absolute, root_size, rest)) return {};
  if (absolute.size() == root_size) absolute += L'\\';
  return absolute;
}

std::wstring long_path(std::string_view path, EntryKind kind) {
  const std::wstring absolute = absolute_path(path, kind);
  if (absolute.empty()) return {};
  const bool share = absolute.starts_with(kShareForm);
  std::wstring spelled(share ? kLongShareForm : kLongForm);
  return spelled.append(absolute, share ? kShareForm.size() : 0);
}

}  // namespace vorlund
