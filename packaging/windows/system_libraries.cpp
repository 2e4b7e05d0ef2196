// Where the program's libraries come from: Windows' own folder, and never the game's. Old games bring wrapper
// libraries with the names of the system's, and the loader would look for these beside the program first.
#include <windows.h>

#include <delayimp.h>

/// As much of the image's load configuration as has a meaning here; the system's headers name its fields
/// differently.
struct LoadConfiguration {
  DWORD size;
  DWORD unused[18];
  WORD unused_too;
  WORD dependent_load_flags;
  ULONGLONG none[4];
};
static_assert(sizeof(LoadConfiguration) == 0x70);

/// Read by the loader before anything of the program runs: what the image names directly is looked for in the
/// system's folder. The step after the link enters it in the image's directory (see name_load_config.cpp).
extern "C" const LoadConfiguration _load_config_used __attribute__((section(".loadcfg"), used)) = {
    sizeof(LoadConfiguration), {}, 0, LOAD_LIBRARY_SEARCH_SYSTEM32, {}};

namespace {

template <typename Type>
Type* at(DWORD offset) {
  return reinterpret_cast<Type*>(reinterpret_cast<char*>(GetModuleHandleW(nullptr)) + offset);
}

/// The program can't go on without the function.
[[noreturn]] void end_without(const char* name) {
  MessageBoxA(nullptr, name, "Vorlund misses a part of Windows", MB_ICONERROR);
  ExitProcess(1);
}

HMODULE load(const ImgDelayDescr& library) {
  auto* const loaded = at<HMODULE>(library.rvaHmod);
  if (*loaded == nullptr) {
    *loaded = LoadLibraryExA(at<char>(library.rvaDLLName), nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  }
  if (*loaded == nullptr) end_without(at<char>(library.rvaDLLName));
  return *loaded;
}

/// Before anything else of the program runs: a library that is asked for by its bare name, by Qt or by
/// Windows itself, is looked for in the system's folder alone.
const bool kSystemFolderAlone = SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32) != 0;

}  // namespace

/// Finds a function of a delayed library, and enters its address for the calls to come.
extern "C" FARPROC WINAPI vorlund_find_function(PCImgDelayDescr library, FARPROC* address) {
  const HMODULE module = load(*library);
  const auto index = address - at<FARPROC>(library->rvaIAT);
  const auto& name = at<IMAGE_THUNK_DATA>(library->rvaINT)[index].u1;
  const bool by_number = IMAGE_SNAP_BY_ORDINAL(name.Ordinal);
  const char* const text = by_number ? MAKEINTRESOURCEA(IMAGE_ORDINAL(name.Ordinal))
                                     : at<IMAGE_IMPORT_BY_NAME>(static_cast<DWORD>(name.AddressOfData))->Name;
  const FARPROC function = GetProcAddress(module, text);
  if (function == nullptr) end_without(by_number ? at<char>(library->rvaDLLName) : text);
  *address = function;
  return function;
}

// Called by the linker's stubs at the first call of a function. They keep the arguments of that call but
// those in the floating-point registers.
asm(R"(
  .globl __delayLoadHelper2
__delayLoadHelper2:
  subq $0x68, %rsp
  movups %xmm0, 0x20(%rsp)
  movups %xmm1, 0x30(%rsp)
  movups %xmm2, 0x40(%rsp)
  movups %xmm3, 0x50(%rsp)
  call vorlund_find_function
  movups 0x20(%rsp), %xmm0
  movups 0x30(%rsp), %xmm1
  movups 0x40(%rsp), %xmm2
  movups 0x50(%rsp), %xmm3
  addq $0x68, %rsp
  ret
)");
