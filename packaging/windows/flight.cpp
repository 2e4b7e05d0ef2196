// Stands in for the game in a check of "Fly!": leaves a file that says where and how it was started.
#include <windows.h>

#include <cstdio>

int main(int argc, char**) {
  wchar_t folder[MAX_PATH];
  GetCurrentDirectoryW(MAX_PATH, folder);
  char text[3 * MAX_PATH];
  if (WideCharToMultiByte(CP_UTF8, 0, folder, -1, text, sizeof text, nullptr, nullptr) == 0) return 1;
  std::FILE* file = std::fopen("flown.txt", "wb");
  if (file == nullptr) return 1;
  std::fprintf(file, "%s, %d arguments\n", text, argc - 1);
  return std::fclose(file) == 0 ? 0 : 1;
}
