// Loader patch records, applied to an executable's bytes.
#include "gamesets/loader_patch.h"

#include <gtest/gtest.h>

#include <string>

#include "core/action_error.h"
#include "support/sample_environment.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

using namespace std::string_literals;

std::string patched(std::string_view executable, std::string_view patch) {
  PatchedBytes bytes{std::string(executable)};
  apply_loader_patch(patch, bytes);
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

TEST(LoaderPatch, RefusesAPatchFileThatIsFarTooLarge) {
  const test::TemporaryFolder folder;
  const auto files = make_platform_file_system();
  test::SampleEnvironment environment(*files, folder.path());
  folder.write("eaw.exe", "MZ");
  folder.write("huge.LDR", std::string((64U << 20) + 1, '\0'));
  try {
    install_loader_patch(environment, folder.path("huge.LDR"));
    FAIL() << "it was applied";
  } catch (const ActionError& error) {
    EXPECT_EQ(error.path(), folder.path("huge.LDR"));
    EXPECT_NE(error.reason().find("67108865 bytes"), std::string::npos) << error.reason();
  }
  EXPECT_EQ(folder.read("eaw.exe"), "MZ");
}

}  // namespace
}  // namespace vorlund
