// Loader patch records, applied to an executable's bytes.
#include "gamesets/loader_patch.h"

#include <gtest/gtest.h>
#ifndef _WIN32
#include <unistd.h>
#endif

#include <algorithm>
#include <string>

#include "base/action_error.h"
#include "support/recording_status.h"
#include "support/temporary_folder.h"
#include "support/text_reader.h"

namespace vorlund {
namespace {

using namespace std::string_literals;

std::string patched(std::string_view executable, std::string_view patch) {
  PatchedBytes bytes{std::string(executable)};
  test::TextReader reader(patch);
  Status unseen;
  apply_loader_patch(reader, unseen, bytes);
  return bytes.bytes();
}

TEST(LoaderPatch, WritesExactlyTheBytesOfItsOneRecord) {
  const std::string executable = "0123456789ABCDEFGHIJ";
  EXPECT_EQ(patched(executable, "\x10\0\0\x11\0\0xy"s), "0123456789ABCDEFxyIJ");
}

TEST(LoaderPatch, AppliesRecordsInOrderSoThatALaterOneWins) {
  EXPECT_EQ(patched("abcdef", "\x01\0\0\x03\0\0XYZ\x02\0\0\x02\0\0!"s), "aX!Zef");
}

TEST(LoaderPatch, CountsOffsetsInThreeBytesLowestFirst) {
  std::string expected(0x010203 + 1, '\0');
  expected[0] = 'M';
  expected.back() = '#';
  EXPECT_EQ(patched("M", "\x03\x02\x01\x03\x02\x01#"s), expected);
}

TEST(LoaderPatch, ReachesTheLargestOffsetItCanName) {
  const std::string result = patched("MZ", "\xFF\xFF\xFF\xFF\xFF\xFF!"s);
  ASSERT_EQ(result.size(), 0x1000000U);
  EXPECT_EQ(result.back(), '!');
  EXPECT_EQ(result.substr(0, 3), "MZ\0"s);
}

TEST(LoaderPatch, WritesNothingWhereLastIsBeforeFirstAndGoesOnBehindTheHeader) {
  EXPECT_EQ(patched("abcd", "\x03\0\0\x02\0\0\x01\0\0\x01\0\0X"s), "aXcd");
}

TEST(LoaderPatch, AppliesCompleteRecordsAndNothingOfTheOneThatIsCutShort) {
  const std::string first = "\x00\0\0\x00\0\0X"s;
  const std::string second = "\x02\0\0\x03\0\0YZ"s;
  for (std::size_t kept = 0; kept < second.size(); ++kept) {
    EXPECT_EQ(patched("abcd", first + second.substr(0, kept)), "Xbcd") << kept << " bytes of the record";
  }
  EXPECT_EQ(patched("abcd", first + second), "XbYZ");
}

TEST(LoaderPatch, DoesNothingForAnEmptyFile) {
  EXPECT_EQ(patched("abcd", ""), "abcd");
}

TEST(LoaderPatch, FillsTheGapWithZeroesWhereItWritesPastTheEnd) {
  EXPECT_EQ(patched("ab", "\x04\0\0\x05\0\0XY"s), "ab\0\0XY"s);
}

/// Counts what was asked for at once.
class CountingReader : public test::TextReader {
 public:
  using TextReader::TextReader;
  std::size_t read(char* bytes, std::size_t size) override {
    largest = std::max(largest, size);
    return TextReader::read(bytes, size);
  }
  std::size_t largest = 0;
};

TEST(LoaderPatch, TakesAPatchFileOfAnyLengthRecordByRecord) {
  constexpr int kRecords = 3'000'000;
  std::string patch;
  for (int record = 0; record < kRecords; ++record) {
    patch += std::string("\x01\0\0\x02\0\0", 6) + static_cast<char>('a' + record % 26) + 'Z';
  }
  patch += "\x03\0\0\xFF\xFF\xFFthe end cuts this one short"s;
  ASSERT_GT(patch.size(), 20U << 20);
  CountingReader reader(patch);
  PatchedBytes executable("MZ..");
  Status unseen;
  apply_loader_patch(reader, unseen, executable);
  EXPECT_EQ(executable.bytes(), std::string("M") + static_cast<char>('a' + (kRecords - 1) % 26) + "Z.");
  EXPECT_LE(reader.largest, 1U << 20);
}

#if !defined(_WIN32) && !defined(__SANITIZE_ADDRESS__)
TEST(LoaderPatch, AnExecutableThatDoesNotFitIntoMemoryIsAnErrorThatNamesItAndStays) {
  const test::TemporaryFolder folder;
  const auto files = make_platform_file_system();
  const GameFolder game{*files, folder.path()};
  test::RecordingStatus status;
  constexpr off_t kTooMuch = off_t{8} << 40;
  folder.write("eaw.exe", "MZ");
  if (::truncate((folder.path() + "/eaw.exe").c_str(), kTooMuch) != 0)
    GTEST_SKIP() << "no such large files here";
  folder.write("fix.LDR", "\0\0\0\0\0\0!"s);
  try {
    Status unseen;
    install_loader_patch(game, unseen, folder.path("fix.LDR"));
    FAIL() << "it was patched";
  } catch (const ActionError& error) {
    EXPECT_EQ(error.path(), folder.path("eaw.exe"));
    EXPECT_EQ(error.reason(), kOutOfMemory);
  }
  EXPECT_EQ(files->read_file(folder.path("eaw.exe"), 3), "MZ\0"s);
  EXPECT_EQ(files->open_file(folder.path("eaw.exe"))->size(), std::uint64_t{kTooMuch});
}
#endif

}  // namespace
}  // namespace vorlund
