// Stands in for the game in a check of "Fly!": leaves a file that says where and how it was started.
#include <windows.h>

#include <cstdio>

int main(int argc, char**) {
  wchar_t folder[MAX_PATH];
  GetCurrentDirectoryW(MAX_PATH, folder);
  std::FILE* file = std::fopen("flown.txt", "wb");
  if (file == nullptr) return 1;
  std::fprintf(file, "%ls, %d arguments\r\n", folder, argc - 1);
  return std::fclose(file) == 0 ? 0 : 1;
}
