// What a disk or the system may answer on Windows: answers that no test can bring about otherwise, as on a
// disk with links, for want of rights or where a rename does what it says.
#include <gtest/gtest.h>
#include <windows.h>

#include <shellapi.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "base/action_error.h"
#include "disk/file_system.h"
#include "support/left_over.h"
#include "support/temporary_folder.h"
#include "windows/windows_path.h"
#include "windows/windows_program.h"

namespace {

enum class Locks { kAllowed, kForThisUserAlone, kHeldByAnotherUser, kFailing };

/// What is answered in place of the system; where nothing is said, the system answers.
struct Answers {
  std::wstring link;  ///< what ends so is said to be a link
  DWORD link_tag = IO_REPARSE_TAG_SYMLINK;
  std::wstring short_form;  ///< what ends so is looked for as `long_form`
  std::wstring long_form;
  bool replaces_case = false;  ///< what replaces a file brings its own spelling
  bool renames_case = false;   ///< a rename that changes nothing but case is done
  std::function<DWORD(DWORD access, DWORD disposition)> open_error = [](DWORD, DWORD) {
    return ERROR_SUCCESS;
  };
  DWORD information_error = ERROR_SUCCESS;
  DWORD rights_error = ERROR_SUCCESS;
  DWORD first_rename_error = ERROR_SUCCESS;  ///< of the first rename of an open file
  DWORD list_error = ERROR_SUCCESS;
  DWORD current_folder_error = ERROR_SUCCESS;
  DWORD seek_error = ERROR_SUCCESS;
  DWORD exit_code_error = ERROR_SUCCESS;
  std::optional<DWORD> exit_code;  ///< of every process
  bool writes_nothing = false;     ///< and says so
  DWORD upper_case_error = ERROR_SUCCESS;
  DWORD create_process_error = ERROR_SUCCESS;
  DWORD shell_error = ERROR_SUCCESS;
  Locks locks = Locks::kAllowed;
};

Answers answers;
std::wstring shell_started;
std::wstring shell_folder;

/// The system's own function.
template <typename Function>
Function system_function(const char* name, const wchar_t* library = L"kernel32") {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(library), name)));
}

BOOL failed(DWORD error) {
  SetLastError(error);
  return FALSE;
}

bool is_link(std::wstring_view name) {
  return !answers.link.empty() && name.ends_with(answers.link);
}

/// Marks what was found where it is to be a link.
void mark_link(WIN32_FIND_DATAW& found) {
  if (!is_link(found.cFileName)) return;
  found.dwFileAttributes |= FILE_ATTRIBUTE_REPARSE_POINT;
  found.dwReserved0 = answers.link_tag;
}

BOOL WINAPI create_process(LPCWSTR, LPWSTR, LPSECURITY_ATTRIBUTES, LPSECURITY_ATTRIBUTES, BOOL, DWORD, LPVOID,
                           LPCWSTR, LPSTARTUPINFOW, LPPROCESS_INFORMATION) {
  return failed(answers.create_process_error);
}

BOOL WINAPI shell_execute(SHELLEXECUTEINFOW* start) {
  shell_started = start->lpFile;
  shell_folder = start->lpDirectory;
  return answers.shell_error == ERROR_SUCCESS ? TRUE : failed(answers.shell_error);
}

HANDLE WINAPI create_file(LPCWSTR name, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security,
                          DWORD disposition, DWORD flags, HANDLE model) {
  static const auto real = system_function<decltype(&CreateFileW)>("CreateFileW");
  if (const DWORD error = answers.open_error(access, disposition); error != ERROR_SUCCESS) {
    SetLastError(error);
    return INVALID_HANDLE_VALUE;
  }
  return real(name, access, share, security, disposition, flags, model);
}

DWORD WINAPI get_attributes(LPCWSTR name) {
  static const auto real = system_function<decltype(&GetFileAttributesW)>("GetFileAttributesW");
  const DWORD attributes = real(name);
  return is_link(name) && attributes != INVALID_FILE_ATTRIBUTES ? attributes | FILE_ATTRIBUTE_REPARSE_POINT
                                                                : attributes;
}

BOOL WINAPI get_information(HANDLE file, LPBY_HANDLE_FILE_INFORMATION information) {
  static const auto real =
      system_function<decltype(&GetFileInformationByHandle)>("GetFileInformationByHandle");
  return answers.information_error == ERROR_SUCCESS ? real(file, information)
                                                    : failed(answers.information_error);
}

HANDLE WINAPI find_first(LPCWSTR mask, FINDEX_INFO_LEVELS level, LPVOID found, FINDEX_SEARCH_OPS search,
                         LPVOID filter, DWORD flags) {
  static const auto real = system_function<decltype(&FindFirstFileExW)>("FindFirstFileExW");
  if (answers.list_error != ERROR_SUCCESS) {
    SetLastError(answers.list_error);
    return INVALID_HANDLE_VALUE;
  }
  std::wstring asked = mask;
  if (!answers.short_form.empty() && asked.ends_with(answers.short_form))
    asked.replace(asked.size() - answers.short_form.size(), answers.short_form.size(), answers.long_form);
  const HANDLE handle = real(asked.c_str(), level, found, search, filter, flags);
  if (handle != INVALID_HANDLE_VALUE) mark_link(*static_cast<WIN32_FIND_DATAW*>(found));
  return handle;
}

BOOL WINAPI find_next(HANDLE search, LPWIN32_FIND_DATAW found) {
  static const auto real = system_function<decltype(&FindNextFileW)>("FindNextFileW");
  const BOOL result = real(search, found);
  if (result != 0) mark_link(*found);
  return result;
}

BOOL WINAPI move_file(LPCWSTR from, LPCWSTR to, DWORD flags) {
  static const auto real = system_function<decltype(&MoveFileExW)>("MoveFileExW");
  if (!answers.renames_case) return real(from, to, flags);
  const std::wstring between = std::wstring(to) + L".between";
  return real(from, between.c_str(), flags) != 0 ? real(between.c_str(), to, flags) : FALSE;
}

/// As everywhere, the size is told where there is no room.
BOOL WINAPI get_rights(HANDLE object, SECURITY_INFORMATION kinds, PSECURITY_DESCRIPTOR rights, DWORD room,
                       LPDWORD size) {
  static const auto real =
      system_function<decltype(&GetKernelObjectSecurity)>("GetKernelObjectSecurity", L"advapi32");
  return answers.rights_error == ERROR_SUCCESS || room == 0 ? real(object, kinds, rights, room, size)
                                                            : failed(answers.rights_error);
}

BOOL WINAPI set_information(HANDLE file, FILE_INFO_BY_HANDLE_CLASS kind, LPVOID information, DWORD size) {
  static const auto real =
      system_function<decltype(&SetFileInformationByHandle)>("SetFileInformationByHandle");
  if (answers.first_rename_error != ERROR_SUCCESS && kind == FileRenameInfo)
    return failed(std::exchange(answers.first_rename_error, ERROR_SUCCESS));
  if (answers.replaces_case && kind == FileRenameInfo)
    DeleteFileW(static_cast<const FILE_RENAME_INFO*>(information)->FileName);
  return real(file, kind, information, size);
}

DWORD WINAPI current_folder(DWORD size, LPWSTR folder) {
  static const auto real = system_function<decltype(&GetCurrentDirectoryW)>("GetCurrentDirectoryW");
  if (answers.current_folder_error == ERROR_SUCCESS) return real(size, folder);
  SetLastError(answers.current_folder_error);
  return 0;
}

BOOL WINAPI set_position(HANDLE file, LARGE_INTEGER distance, PLARGE_INTEGER position, DWORD method) {
  static const auto real = system_function<decltype(&SetFilePointerEx)>("SetFilePointerEx");
  return answers.seek_error == ERROR_SUCCESS ? real(file, distance, position, method)
                                             : failed(answers.seek_error);
}

BOOL WINAPI get_exit_code(HANDLE process, LPDWORD code) {
  static const auto real = system_function<decltype(&GetExitCodeProcess)>("GetExitCodeProcess");
  if (answers.exit_code_error != ERROR_SUCCESS) return failed(answers.exit_code_error);
  if (!answers.exit_code) return real(process, code);
  *code = *answers.exit_code;
  return TRUE;
}

BOOL WINAPI write_file(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD written, LPOVERLAPPED overlapped) {
  static const auto real = system_function<decltype(&WriteFile)>("WriteFile");
  return real(file, bytes, answers.writes_nothing ? 0 : size, written, overlapped);
}

bool is_global(LPCWSTR name) {
  return std::wstring_view(name).starts_with(L"Global\\");
}

HANDLE WINAPI create_mutex(LPSECURITY_ATTRIBUTES security, BOOL owned, LPCWSTR name) {
  static const auto real = system_function<decltype(&CreateMutexW)>("CreateMutexW");
  const bool failing = answers.locks == Locks::kFailing;
  if (answers.locks == Locks::kAllowed || (!is_global(name) && !failing)) return real(security, owned, name);
  SetLastError(failing ? ERROR_NOT_ENOUGH_MEMORY : ERROR_ACCESS_DENIED);
  return nullptr;
}

HANDLE WINAPI open_mutex(DWORD access, BOOL inherited, LPCWSTR name) {
  static const auto real = system_function<decltype(&OpenMutexW)>("OpenMutexW");
  if (answers.locks != Locks::kHeldByAnotherUser || !is_global(name)) return real(access, inherited, name);
  SetLastError(ERROR_ACCESS_DENIED);
  return nullptr;
}

int WINAPI map_string(LPCWSTR locale, DWORD flags, LPCWSTR from, int from_size, LPWSTR to, int to_size,
                      LPNLSVERSIONINFO version, LPVOID reserved, LPARAM handle) {
  static const auto real = system_function<decltype(&LCMapStringEx)>("LCMapStringEx");
  if (answers.upper_case_error != ERROR_SUCCESS) return failed(answers.upper_case_error);
  return real(locale, flags, from, from_size, to, to_size, version, reserved, handle);
}

}  // namespace

// The linker takes these for the addresses of the system's functions.
extern "C" {
decltype(&CreateProcessW) __imp_CreateProcessW = create_process;
decltype(&ShellExecuteExW) __imp_ShellExecuteExW = shell_execute;
decltype(&CreateFileW) __imp_CreateFileW = create_file;
decltype(&GetFileAttributesW) __imp_GetFileAttributesW = get_attributes;
decltype(&GetFileInformationByHandle) __imp_GetFileInformationByHandle = get_information;
decltype(&GetKernelObjectSecurity) __imp_GetKernelObjectSecurity = get_rights;
decltype(&FindFirstFileExW) __imp_FindFirstFileExW = find_first;
decltype(&FindNextFileW) __imp_FindNextFileW = find_next;
decltype(&MoveFileExW) __imp_MoveFileExW = move_file;
decltype(&SetFileInformationByHandle) __imp_SetFileInformationByHandle = set_information;
decltype(&GetCurrentDirectoryW) __imp_GetCurrentDirectoryW = current_folder;
decltype(&SetFilePointerEx) __imp_SetFilePointerEx = set_position;
decltype(&GetExitCodeProcess) __imp_GetExitCodeProcess = get_exit_code;
decltype(&WriteFile) __imp_WriteFile = write_file;
decltype(&CreateMutexW) __imp_CreateMutexW = create_mutex;
decltype(&OpenMutexW) __imp_OpenMutexW = open_mutex;
decltype(&LCMapStringEx) __imp_LCMapStringEx = map_string;
}

namespace vorlund {
namespace {

using namespace std::chrono_literals;
using Names = std::vector<std::string>;
using Tree = std::map<std::string, std::string>;

/// The reason of the error that the work ends with, "" where it ends well.
template <typename Work>
std::string reason_of(const Work& work) {
  try {
    work();
    return "";
  } catch (const ActionError& error) {
    return error.reason();
  }
}

class WindowsFaults : public testing::Test {
 protected:
  WindowsFaults() { shell_started.clear(); }
  ~WindowsFaults() override { answers = {}; }

  std::string start() {
    return reason_of([this] { files_->start_program(folder_.path("eaw.exe"), folder_.path()); });
  }

  CopyOutcome copy(const std::string& source, const std::string& target) {
    return files_->copy_file(folder_.path(source), folder_.path(target), Durability::kCached);
  }

  std::string reason_of_copy() {
    return reason_of([this] { copy("source", "target"); });
  }

  test::TemporaryFolder folder_;
  std::unique_ptr<FileSystem> files_ = make_platform_file_system();
};

TEST_F(WindowsFaults, AProgramThatAsksForAnAdministratorsRightsIsStartedByTheShell) {
  answers.create_process_error = kElevationRequired;
  EXPECT_EQ(start(), "");
  EXPECT_EQ(from_wide(shell_started), folder_.path("eaw.exe"));
  EXPECT_EQ(from_wide(shell_folder), folder_.path());
}

TEST_F(WindowsFaults, ItIsAnErrorWhereTheUserSaysNo) {
  answers.create_process_error = kElevationRequired;
  answers.shell_error = ERROR_CANCELLED;
  EXPECT_NE(start(), "");
}

TEST_F(WindowsFaults, NoOtherFailureIsLeftToTheShell) {
  answers.create_process_error = ERROR_BAD_EXE_FORMAT;
  EXPECT_NE(start(), "");
  EXPECT_EQ(shell_started, L"");
}

TEST_F(WindowsFaults, WithoutTheRightToWriteTheErrorSaysWhatToDo) {
  folder_.write("source", "new");
  answers.open_error = [](DWORD, DWORD disposition) {
    return disposition == CREATE_NEW ? ERROR_ACCESS_DENIED : ERROR_SUCCESS;
  };
  const std::string reason = reason_of_copy();
  EXPECT_NE(reason.find("outside \"Program Files\""), std::string::npos) << reason;
  EXPECT_EQ(folder_.names(), Names{"source"});
}

TEST_F(WindowsFaults, WithoutTheRightToWriteTheForecastSaysTheSame) {
  folder_.write("source", "new");
  DWORD error = ERROR_ACCESS_DENIED;
  answers.open_error = [&error](DWORD access, DWORD) {
    return access == FILE_ADD_FILE ? error : DWORD{ERROR_SUCCESS};
  };
  const auto foresee = [this] {
    return reason_of([this] { files_->foresee_copy(folder_.path("source"), folder_.path("target")); });
  };
  EXPECT_NE(foresee().find("outside \"Program Files\""), std::string::npos);
  error = ERROR_WRITE_PROTECT;
  const std::string reason = foresee();
  EXPECT_FALSE(reason.empty());
  EXPECT_EQ(reason.find("Program Files"), std::string::npos);
}

TEST_F(WindowsFaults, ANameThatIsTakenMeanwhileIsGoneRoundAndAnyOtherRefusalIsAnError) {
  folder_.write("source", "new");
  for (const DWORD taken : {ERROR_FILE_EXISTS, ERROR_ALREADY_EXISTS}) {
    int refusals = 2;
    answers.open_error = [&refusals, taken](DWORD, DWORD disposition) {
      return disposition == CREATE_NEW && refusals-- > 0 ? taken : DWORD{ERROR_SUCCESS};
    };
    EXPECT_EQ(reason_of_copy(), "");
    EXPECT_LT(refusals, 1);
    EXPECT_EQ(folder_.tree(), (Tree{{"source", "new"}, {"target", "new"}}));
    files_->remove_file(folder_.path("target"));
  }
  answers.open_error = [](DWORD, DWORD disposition) {
    return disposition == CREATE_NEW ? ERROR_WRITE_PROTECT : ERROR_SUCCESS;
  };
  EXPECT_NE(reason_of_copy(), "");
  EXPECT_EQ(folder_.names(), Names{"source"});
}

TEST_F(WindowsFaults, ALinkIsSeenForWhatItLeadsToAndReplacedItself) {
  folder_.write("source", "new");
  folder_.write("link", "new");
  answers.link = L"\\link";
  EXPECT_TRUE(files_->FileExists(folder_.path("link")));
  answers.link = L"link";
  EXPECT_EQ(files_->entries(folder_.path()).size(), 2U);
  EXPECT_EQ(copy("source", "link"), CopyOutcome::kWritten);
  // A file that the disk keeps in a manner of its own is no link.
  answers.link_tag = IO_REPARSE_TAG_DEDUP;
  EXPECT_EQ(copy("source", "link"), CopyOutcome::kUnchanged);
}

TEST_F(WindowsFaults, ALinkThatLeadsNowhereIsNotThereAndOneThatMayNotBeFollowedIsNamed) {
  folder_.write("link", "");
  folder_.write("file", "");
  answers.link = L"link";
  DWORD error = ERROR_FILE_NOT_FOUND;
  answers.open_error = [&error](DWORD access, DWORD) {
    return access == FILE_READ_ATTRIBUTES ? error : DWORD{ERROR_SUCCESS};
  };
  const auto names = [this] {
    Names found;
    for (const FolderEntry& entry : files_->entries(folder_.path())) found.push_back(entry.name);
    return found;
  };
  EXPECT_FALSE(files_->FileExists(folder_.path("link")));
  EXPECT_EQ(names(), Names{"file"});
  EXPECT_EQ(files_->take_unseen(), Names{});
  error = ERROR_ACCESS_DENIED;
  EXPECT_EQ(names(), Names{"file"});
  EXPECT_EQ(files_->take_unseen(), Names{folder_.path("link")});
  error = ERROR_SUCCESS;
  answers.information_error = ERROR_IO_DEVICE;
  EXPECT_NE(reason_of([&] { files_->FileExists(folder_.path("link")); }), "");
  EXPECT_NE(reason_of(names), "");
}

TEST_F(WindowsFaults, AFolderThatIsNoneIsEmptyAndOneThatCannotBeListedIsAnError) {
  folder_.write("file", "");
  for (const DWORD none : {ERROR_PATH_NOT_FOUND, ERROR_DIRECTORY, ERROR_INVALID_NAME, ERROR_FILE_NOT_FOUND}) {
    answers.list_error = none;
    EXPECT_TRUE(files_->entries(folder_.path()).empty()) << none;
  }
  for (const DWORD failure : {ERROR_ACCESS_DENIED, ERROR_IO_DEVICE}) {
    answers.list_error = failure;
    EXPECT_NE(reason_of([this] { files_->entries(folder_.path()); }), "") << failure;
  }
  answers.list_error = ERROR_SUCCESS;
  EXPECT_TRUE(files_->entries("").empty());
}

TEST_F(WindowsFaults, WithoutACurrentFolderThereIsAnError) {
  answers.current_folder_error = ERROR_NOT_ENOUGH_MEMORY;
  EXPECT_NE(reason_of([this] { files_->current_folder(); }), "");
  EXPECT_FALSE(files_->FileExists("eaw.exe"));
}

TEST_F(WindowsFaults, ASpellingIsTakenWhereReplacingOrRenamingBringsIt) {
  folder_.write("source", "new");
  for (bool Answers::*way : {&Answers::replaces_case, &Answers::renames_case}) {
    folder_.write("TARGET", "old");
    answers.*way = true;
    EXPECT_EQ(copy("source", "target"), CopyOutcome::kWritten);
    EXPECT_EQ(folder_.tree(), (Tree{{"source", "new"}, {"target", "new"}}));
    answers.*way = false;
    files_->remove_file(folder_.path("target"));
  }
}

TEST_F(WindowsFaults, AStepOverANameOfItsOwnLeavesTheOneThatStandsThereAlone) {
  folder_.write("source", "new");
  folder_.write("TARGET", "old");
  folder_.write(staging_name(0), "a stranger's");
  EXPECT_EQ(copy("source", "target"), CopyOutcome::kWritten);
  EXPECT_EQ(folder_.tree(), (Tree{{"source", "new"}, {"target", "new"}, {staging_name(0), "a stranger's"}}));
}

TEST_F(WindowsFaults, AFolderIsKnownByWhateverPath) {
  folder_.write("source", "new");
  folder_.make_folder("Sub");
  const FileSystem::Action action(*files_);
  EXPECT_EQ(copy("source", "Sub\\target"), CopyOutcome::kWritten);
  EXPECT_EQ(copy("source", "SUB\\target"), CopyOutcome::kUnchanged);
  EXPECT_EQ(copy("source", "Sub\\target"), CopyOutcome::kUnchanged);
}

TEST_F(WindowsFaults, AWriteThatWritesNothingIsAFullDisk) {
  folder_.write("source", "new");
  answers.writes_nothing = true;
  EXPECT_NE(reason_of_copy(), "");
  answers.writes_nothing = false;
  EXPECT_EQ(folder_.tree(), (Tree{{"source", "new"}}));
}

TEST_F(WindowsFaults, AReaderThatCannotBePlacedIsAnError) {
  folder_.write("source", "new");
  const auto reader = files_->open_file(folder_.path("source"));
  answers.seek_error = ERROR_SEEK;
  EXPECT_NE(reason_of([&] { reader->seek(1); }), "");
}

TEST_F(WindowsFaults, AnErrorThatTheSystemHasNoWordsForIsGivenByItsNumber) {
  folder_.write("source", "new");
  answers.open_error = [](DWORD, DWORD) { return DWORD{0x2BADBAD}; };
  EXPECT_EQ(reason_of([this] { files_->read_file(folder_.path("source")); }), "error 45800365");
}

TEST_F(WindowsFaults, TheRoomOfAFolderThatIsNotThereIsNotKnown) {
  EXPECT_TRUE(files_->free_room(folder_.path()));
  EXPECT_FALSE(files_->free_room(folder_.path("nothing")));
}

TEST_F(WindowsFaults, AProcessThatHasEndedRunsNoMoreThoughSomebodyStillAsksForIt) {
  const std::string name = staging_name(0);
  EXPECT_FALSE(is_left_over(name));
  answers.exit_code = 0;
  EXPECT_TRUE(is_left_over(name));
  answers.exit_code_error = ERROR_ACCESS_DENIED;
  EXPECT_FALSE(is_left_over(name));
}

TEST_F(WindowsFaults, AFileFoundByItsShortFormKeepsItsLongName) {
  folder_.write("source", "new");
  folder_.write("a long name.text", "new");
  answers.short_form = L"ALONGN~1.TEX";
  answers.long_form = L"a long name.text";
  EXPECT_EQ(copy("source", "ALONGN~1.TEX"), CopyOutcome::kUnchanged);
  EXPECT_EQ(folder_.tree(), (Tree{{"a long name.text", "new"}, {"source", "new"}}));
}

TEST_F(WindowsFaults, NamesWithoutUpperCaseAreComparedAsTheyStand) {
  folder_.write("source", "new");
  answers.upper_case_error = ERROR_NOT_ENOUGH_MEMORY;
  const FileSystem::Action action(*files_);
  EXPECT_EQ(copy("source", "target"), CopyOutcome::kWritten);
  EXPECT_EQ(copy("source", "target"), CopyOutcome::kUnchanged);
}

TEST_F(WindowsFaults, WhereLocksForAllUsersAreNotAllowedTheyHoldForThisOne) {
  answers.locks = Locks::kForThisUserAlone;
  const FolderLocks locks = files_->lock_folders({folder_.path()}, 0ms);
  EXPECT_EQ(locks.in_use(), "");
  EXPECT_EQ(make_platform_file_system()->lock_folders({folder_.path()}, 0ms).in_use(), folder_.path());
}

TEST_F(WindowsFaults, ALockThatAnotherUserHoldsIsInUseAndOneThatFailsIsAnError) {
  answers.locks = Locks::kHeldByAnotherUser;
  EXPECT_EQ(files_->lock_folders({folder_.path()}, 0ms).in_use(), folder_.path());
  answers.locks = Locks::kFailing;
  EXPECT_NE(reason_of([this] { files_->lock_folders({folder_.path()}, 0ms); }), "");
}

TEST_F(WindowsFaults, ADiskThatDoesNotTellFoldersApartKnowsNoLocks) {
  answers.information_error = ERROR_NOT_SUPPORTED;
  const FolderLocks locks = files_->lock_folders({folder_.path()}, 0ms);
  EXPECT_EQ(locks.in_use(), "");
  EXPECT_EQ(locks.without_locks(), folder_.path());
}

/// Copies that are written in a folder of their own before they are renamed to their place.
class WindowsStaging : public WindowsFaults {
 protected:
  WindowsStaging() {
    folder_.write("Set/a", "new a");
    folder_.write("Game/b", "old b");
    folder_.write("Set/b", "new b");
    folder_.make_folder("Store");
  }

  /// What writes were made in shows by what a crash has left there: it is swept.
  void copy_set(const Names& written_in) {
    for (const char* folder : {"Game/", "Store/"}) folder_.write(folder + left_over_, "half");
    Tree expected{{"Set/a", "new a"}, {"Set/b", "new b"}, {"Game/a", "new a"}, {"Game/b", "new b"}};
    for (const std::string folder : {"Game/", "Store/"}) {
      if (std::find(written_in.begin(), written_in.end(), folder) == written_in.end())
        expected[folder + left_over_] = "half";
    }
    if (!expected.contains("Store/" + left_over_)) expected["Store/"] = "";
    {
      const FileSystem::Action action(*files_, {}, folder_.path("Store"));
      for (const std::string name : {"a", "b"}) copy("Set\\" + name, "Game\\" + name);
    }
    EXPECT_EQ(folder_.tree(), expected);
  }

  const std::string left_over_ = test::left_over_name();
};

TEST_F(WindowsStaging, ServesWhereFilesInheritTheSame) {
  copy_set({"Store/"});
}

TEST_F(WindowsStaging, IsLeftAloneWhereTheRightsCannotBeTold) {
  answers.rights_error = ERROR_ACCESS_DENIED;
  copy_set({"Game/"});
}

TEST_F(WindowsStaging, IsLeftAloneWhereTheDiskCannotBeTold) {
  answers.information_error = ERROR_NOT_SUPPORTED;
  copy_set({"Game/"});
}

TEST_F(WindowsStaging, WhereItIsMountedApartACopyIsWrittenBesideItsTarget) {
  answers.first_rename_error = ERROR_NOT_SAME_DEVICE;
  copy_set({"Game/", "Store/"});
}

TEST_F(WindowsStaging, WithoutTheRightToWriteThereACopyIsWrittenBesideItsTarget) {
  bool first = true;
  answers.open_error = [&first](DWORD, DWORD disposition) {
    return disposition == CREATE_NEW && std::exchange(first, false) ? ERROR_ACCESS_DENIED : ERROR_SUCCESS;
  };
  copy_set({"Game/", "Store/"});
}

TEST_F(WindowsStaging, ARenameThatFailsOtherwiseIsAnErrorAndLeavesNothing) {
  answers.first_rename_error = ERROR_DISK_FULL;
  const FileSystem::Action action(*files_, {}, folder_.path("Store"));
  EXPECT_NE(reason_of([this] { copy("Set\\b", "Game\\b"); }), "");
  EXPECT_EQ(folder_.tree(),
            (Tree{{"Set/a", "new a"}, {"Set/b", "new b"}, {"Game/b", "old b"}, {"Store/", ""}}));
}

}  // namespace
}  // namespace vorlund
