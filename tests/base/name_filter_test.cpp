// What typed words find, and what they don't, in accented, joined, non-Latin and damaged names.
#include "base/name_filter.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "base/utf8.h"

namespace vorlund {
namespace {

struct Sample {
  std::string_view typed;
  std::string_view name;
};

constexpr Sample kFound[] = {
    {"", "anything"},
    {"   ", "anything"},
    {"", ""},
    {"spit zwilling", "Spitfire IX Zwillinge"},
    {"zwilling spit", "Spitfire IX Zwillinge"},
    {"  ix  ", "Spitfire IX Zwillinge"},
    {"FIRE", "Spitfire IX Zwillinge"},
    {"109", "Bf 109 G-6"},
    {"g\\s", "RAF early\\RAFG\\Spit"},
    // accents on either side
    {"jager", "J\u00E4gergesch\u00FCtz"},
    {"J\u00C4GER", "Jagergeschutz"},
    {"geschutz", "J\u00E4gergesch\u00FCtz"},
    {"escadrille legere", "Escadrille l\u00E9g\u00E8re \u00CEle"},
    {"ile", "Escadrille l\u00E9g\u00E8re \u00CEle"},
    {"lodz", "\u0141\u00F3d\u017A"},
    {"plzen", "Plze\u0148"},
    {"dsinh", "\u0110s\u00ECnh"},
    {"kurt", "K\u00FCrt"},
    {"viet", "Vi\u1EC7t"},
    {"eo", "\u01DE\u0115\u01EB"},
    // letters with combining marks of their own, as some disks spell names
    {"jager", "Ja\u0308ger"},
    {"j\u00E4ger", "Ja\u0308ger"},
    {"ja\u0308ger", "J\u00E4ger"},
    // one letter that is two, and two that are joined
    {"strasse", "Stra\u00DFe"},
    {"stra\u00DFe", "STRASSE"},
    {"stra\u00DFe", "STRA\u1E9EE"},
    {"aero", "\u00C6ro"},
    {"\u00E6ro", "AERO"},
    {"coeur", "C\u0153ur"},
    {"thor", "\u00DE\u00F3r"},
    {"office fly", "o\uFB03ce \uFB02y"},
    {"ijsland", "\u0132sland"},
    // other alphabets
    {"\u03B1\u03B8\u03B7\u03BD\u03B1", "\u0391\u03B8\u03AE\u03BD\u03B1"},
    {"\u039F\u0394\u039F\u03A3", "\u03BF\u03B4\u03CC\u03C2"},
    {"\u0451\u043B\u043A\u0430", "\u0415\u041B\u041A\u0410"},
    {"\u0438\u0301", "\u0439"},
    // blanks that do not break
    {"spitfire ix", "Spitfire\u00A0IX"},
    {"spitfire\u00A0ix", "IX Spitfire"},
    // names that are no text
    {"caf", "caf\xE9"},
    {"\xE9", "caf\xE9"},
    {"\u65E5", "\u65E5\u672C \U0001F6E9"},
    {"\U0001F6E9", "\u65E5\u672C \U0001F6E9"},
};

constexpr Sample kNotFound[] = {
    {"x", ""},
    {"spit hurri", "Spitfire IX Zwillinge"},
    {"spitix", "Spitfire IX"},
    {"zurich", "Z\u00FCri"},
    {"\u0391", "A"},
    {"\u0410", "A"},
    {"\xE9", "caf\u00E9"},
    {"\u00D7", "x"},
    {"o", "\u00F7"},
};

TEST(NameFilter, EveryTypedWordStandsSomewhereInTheName) {
  for (const Sample& sample : kFound) {
    EXPECT_TRUE(NameFilter(sample.typed).matches(sample.name)) << sample.typed << " in " << sample.name;
  }
}

TEST(NameFilter, ANameThatLacksAWordIsNotFound) {
  for (const Sample& sample : kNotFound) {
    EXPECT_FALSE(NameFilter(sample.typed).matches(sample.name)) << sample.typed << " in " << sample.name;
  }
}

TEST(NameFilter, NothingTypedFindsEverything) {
  EXPECT_TRUE(NameFilter().matches("Spitfire"));
  EXPECT_TRUE(NameFilter().matches(""));
}

TEST(NameFilter, AlphabetsAreTakenWhole) {
  for (char32_t character = 0xC0; character < 0x180; ++character) {
    if (character == 0xD7 || character == 0xF7) continue;
    std::string letter;
    append_character(letter, character);
    const std::string form = searched_form(letter);
    EXPECT_FALSE(form.empty()) << letter;
    for (const char plain : form) EXPECT_TRUE(plain >= 'A' && plain <= 'Z') << letter << " is " << form;
  }
}

TEST(NameFilter, AFormIsItsOwnForm) {
  for (char32_t character = 1; character < 0x20000; ++character) {
    std::string letter;
    append_character(letter, character);
    const std::string form = searched_form(letter);
    EXPECT_EQ(searched_form(form), form) << letter;
  }
}

TEST(NameFilter, MatchesAreGivenByTheirIndex) {
  const std::vector<std::string> names = {"Aces", "B\u00E9b\u00E9", "Bebop", "Sc\u00E9nery"};
  const auto itself = [](const std::string& name) -> const std::string& { return name; };
  EXPECT_EQ(matching_indices(NameFilter("beb"), names, itself), (std::vector<int>{1, 2}));
  EXPECT_EQ(matching_indices(NameFilter(""), names, itself), (std::vector<int>{0, 1, 2, 3}));
  EXPECT_EQ(matching_indices(NameFilter("x"), names, itself), std::vector<int>());
}

}  // namespace
}  // namespace vorlund
