// Stands in for a wrapper library that an old game brings under a name of Windows' own: leaves a mark beside
// itself where a program takes it in.
#include <windows.h>

BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, void*) {
  if (reason != DLL_PROCESS_ATTACH) return TRUE;
  wchar_t mark[MAX_PATH];
  const DWORD length = GetModuleFileNameW(library, mark, MAX_PATH - 8);
  lstrcpyW(mark + length, L".loaded");
  CloseHandle(CreateFileW(mark, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
  return TRUE;
}
