// Paths made absolute and clean for Windows, and names in UTF-16 there and back.
#include "windows/windows_path.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace vorlund {
namespace {

using namespace std::string_literals;

TEST(WindowsPath, NamesSurviveTheWayThereAndBack) {
  const struct {
    std::wstring wide;
    std::string text;
  } samples[] = {
      {L"", ""},
      {L"eaw.exe", "eaw.exe"},
      {L"caf\u00E9 \u65E5", "caf\u00E9 \u65E5"},
      {L"\xD83D\xDE00", "\U0001F600"},
      {L"a\xD83Dz", "a\xED\xA0\xBDz"},
      {L"\xDE00\xD83D", "\xED\xB8\x80\xED\xA0\xBD"},
      {L"\xDFFF", "\xED\xBF\xBF"},
  };
  for (const auto& sample : samples) {
    EXPECT_EQ(from_wide(sample.wide), sample.text) << testing::PrintToString(sample.text);
    EXPECT_EQ(to_wide(sample.text), sample.wide) << testing::PrintToString(sample.text);
  }
}

TEST(WindowsPath, TextThatIsNotUtf8HasNoWideForm) {
  for (const char* text : {"\xFF", "caf\xE9", "\xC3", "\xED\xA0", "\xED\xA0z", "\xED"}) {
    EXPECT_EQ(to_wide(text), L"") << testing::PrintToString(text);
  }
}

TEST(WindowsPath, AbsolutePathsAreCleaned) {
  const struct {
    std::string path;
    std::wstring absolute;
  } samples[] = {
      {"C:\\", L"C:\\"},
      {"C:/", L"C:\\"},
      {"C:\\\\~Vorlund\\\\x", L"C:\\~Vorlund\\x"},
      {"C:\\a\\.\\b\\..\\c\\", L"C:\\a\\c"},
      {"C:\\..\\..\\x", L"C:\\x"},
      {"c:/Games/caf\u00E9", L"c:\\Games\\caf\u00E9"},
      {"\\\\server\\share\\x", L"\\\\server\\share\\x"},
      {"//server/share//x/", L"\\\\server\\share\\x"},
      {"\\\\server\\share\\..\\x", L"\\\\server\\share\\x"},
      {"\\\\?\\C:\\x", L"C:\\x"},
      {"\\\\?\\UNC\\server\\share\\x", L"\\\\server\\share\\x"},
      {"C:\\x.\\y ", L"C:\\x.\\y "},
  };
  for (const auto& sample : samples) {
    EXPECT_EQ(from_wide(absolute_path(sample.path, EntryKind::kFolder)), from_wide(sample.absolute))
        << sample.path;
  }
}

TEST(WindowsPath, TheLongFormCarriesItsPrefix) {
  EXPECT_EQ(long_path("C:\\\\x", EntryKind::kFile), L"\\\\?\\C:\\x");
  EXPECT_EQ(long_path("\\\\server\\share\\x", EntryKind::kFile), L"\\\\?\\UNC\\server\\share\\x");
  EXPECT_EQ(long_path("C:\\", EntryKind::kFolder), L"\\\\?\\C:\\");
}

TEST(WindowsPath, RelativePathsStartAtTheCurrentFolderOrItsRoot) {
  const std::wstring current = current_folder_wide();
  const std::wstring prefix = current.ends_with(L'\\') ? current : current + L"\\";
  EXPECT_EQ(absolute_path("x\\y", EntryKind::kFile), prefix + L"x\\y");
  EXPECT_EQ(absolute_path(".", EntryKind::kFolder), current);
  EXPECT_EQ(absolute_path("\\x", EntryKind::kFile), current.substr(0, 2) + L"\\x");
}

TEST(WindowsPath, PathsThatCanNameNothingAreRefused) {
  const std::string hostile[] = {"",
                                 "C:x",
                                 "C:",
                                 "CD:\\x",
                                 "C:\\x:stream",
                                 "C:\\x::$DATA",
                                 "C:\\a*",
                                 "C:\\a?\\b",
                                 "C:\\a\"b",
                                 "C:\\a<b",
                                 "C:\\a>b",
                                 "C:\\a|b",
                                 "C:\\a\tb",
                                 "C:\\a\0b"s,
                                 "C:\\caf\xE9",
                                 "\\\\",
                                 "\\\\server",
                                 "\\\\.\\PhysicalDrive0",
                                 "\\\\?\\GLOBALROOT\\Device\\x",
                                 "\\\\?\\Volume{0}\\x"};
  for (const std::string& path : hostile) {
    // A share's two first parts are taken as they are, so device paths end as shares that do not exist.
    const std::wstring absolute = absolute_path(path, EntryKind::kFolder);
    EXPECT_TRUE(absolute.empty() || absolute.starts_with(L"\\\\.\\")) << testing::PrintToString(path);
  }
  EXPECT_EQ(absolute_path("C:\\x\\", EntryKind::kFile), L"");
  EXPECT_EQ(absolute_path("C:\\", EntryKind::kFile), L"");
}

}  // namespace
}  // namespace vorlund
