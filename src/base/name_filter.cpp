// Takes names and typed words apart into plain letters.
#include "base/name_filter.h"

#include <algorithm>
#include <array>

#include "base/utf8.h"

namespace vorlund {

namespace {

/// Plain letters of consecutive characters; a point for those that have none or are treated elsewhere.
struct PlainLetters {
  char32_t first;
  std::string_view letters;
};

constexpr auto kLatin =
    std::to_array<PlainLetters>({{0xC0, "AAAAAA.CEEEEIIIIDNOOOOO.OUUUUY.."},
                                 {0x100,
                                  "AAAAAACCCCCCCCDDDDEEEEEEEEEEGGGGGGGGHHHHIIIIIIIIII..JJKKKLLLLLLL"
                                  "LLLNNNNNNNNNOOOOOO..RRRRRRSSSSSSSSTTTTTTUUUUUUUUUUUUWWYYYZZZZZZS"},
                                 {0x1A0, "OO.............UU"},
                                 {0x1CD, "AAIIOOUUUUUUUUUU.AAAA....GGKKOOOO..J...GG..NNAA...."},
                                 {0x200, "AAAAEEEEIIIIOOOORRRRUUUUSSTT..HH......AAEEOOOOOOOOYY"},
                                 {0x1E00,
                                  "AABBBBBBCCDDDDDDDDDDEEEEEEEEEEFFGGHHHHHHHHHHIIIIKKKKKKLLLLLLLLMM"
                                  "MMMMNNNNNNNNOOOOOOOOPPPPRRRRRRRRSSSSSSSSSSTTTTTTTTUUUUUUUUUUVVVV"
                                  "WWWWWWWWWWXXXXYYZZZZZZHTWY......AAAAAAAAAAAAAAAAAAAAAAAAEEEEEEEE"
                                  "EEEEEEEEIIIIOOOOOOOOOOOOOOOOOOOOOOOOUUUUUUUUUUUUUUYYYYYYYY"}});

struct Letters {
  char32_t character;
  std::string_view letters;
};

constexpr auto kJoined = std::to_array<Letters>(
    {{0xDF, "SS"},      {0x1E9E, "SS"},    {0xC6, "AE"},      {0x1E2, "AE"},     {0x1FC, "AE"},
     {0x152, "OE"},     {0x132, "IJ"},     {0xDE, "TH"},      {0x1E3, "AE"},     {0x1FD, "AE"},
     {0xFB00, "FF"},    {0xFB01, "FI"},    {0xFB02, "FL"},    {0xFB03, "FFI"},   {0xFB04, "FFL"},
     {0xFB05, "ST"},    {0xFB06, "ST"},    {0x386, "\u0391"}, {0x388, "\u0395"}, {0x389, "\u0397"},
     {0x38A, "\u0399"}, {0x38C, "\u039F"}, {0x38E, "\u03A5"}, {0x38F, "\u03A9"}, {0x390, "\u0399"},
     {0x3AA, "\u0399"}, {0x3AB, "\u03A5"}, {0x3B0, "\u03A5"}, {0x400, "\u0415"}, {0x401, "\u0415"},
     {0x403, "\u0413"}, {0x407, "\u0406"}, {0x40C, "\u041A"}, {0x40D, "\u0418"}, {0x40E, "\u0423"},
     {0x419, "\u0418"}});

constexpr char32_t kFirstMark = 0x300;
constexpr char32_t kLastMark = 0x36F;
constexpr char32_t kNoBreakSpace = 0xA0;

/// Appends what a character past ASCII, in upper case, is searched as.
void append_plain(std::string& text, char32_t character) {
  if (character >= kFirstMark && character <= kLastMark) return;
  for (const PlainLetters& range : kLatin) {
    const char32_t at = character - range.first;
    if (character < range.first || at >= range.letters.size() || range.letters[at] == '.') continue;
    text.push_back(range.letters[at]);
    return;
  }
  for (const Letters& joined : kJoined) {
    if (joined.character != character) continue;
    text.append(joined.letters);
    return;
  }
  append_character(text, character == kNoBreakSpace ? U' ' : character);
}

}  // namespace

std::string searched_form(std::string_view text) {
  std::string plain;
  plain.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const char32_t character = upper_character(next_character(text, at));
    if (character < 0x80) {
      plain.push_back(static_cast<char>(character));
    } else {
      append_plain(plain, character);
    }
  }
  return plain;
}

NameFilter::NameFilter(std::string_view typed) {
  const std::string words = searched_form(typed);
  for (std::size_t begin = 0; (begin = words.find_first_not_of(' ', begin)) != std::string::npos;) {
    const std::size_t end = std::min(words.find(' ', begin), words.size());
    words_.push_back(words.substr(begin, end - begin));
    begin = end;
  }
}

bool NameFilter::matches(std::string_view name) const {
  if (words_.empty()) return true;
  const std::string searched = searched_form(name);
  return std::all_of(words_.begin(), words_.end(),
                     [&](const std::string& word) { return searched.find(word) != std::string::npos; });
}

}  // namespace vorlund
