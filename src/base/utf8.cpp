// UTF-8 by its definition: no overlong forms, no surrogates, nothing past U+10FFFF.
#include "base/utf8.h"

namespace vorlund {

namespace {

struct Sequence {
  std::size_t length;  ///< bytes, 0 where no sequence begins so
  char32_t lead_bits;  ///< what the first byte carries
  char32_t smallest;   ///< the first character that needs this many bytes
};

Sequence sequence_of(unsigned char lead) {
  if ((lead & 0xE0) == 0xC0) return {2, lead & 0x1FU, 0x80};
  if ((lead & 0xF0) == 0xE0) return {3, lead & 0x0FU, 0x800};
  if ((lead & 0xF8) == 0xF0) return {4, lead & 0x07U, 0x10000};
  return {0, 0, 0};
}

bool within(char32_t character, char32_t first, char32_t last) {
  return character >= first && character <= last;
}

/// In runs of pairs the upper-case letter stands right before the lower-case one.
char32_t upper_of_pair(char32_t character, bool lower_is_odd) {
  const bool odd = (character & 1) != 0;
  return odd == lower_is_odd ? character - 1 : character;
}

char32_t upper_latin(char32_t character) {
  if (character == 0xFF) return 0x178;
  if (within(character, 0xE0, 0xFE)) return character == 0xF7 ? character : character - 0x20;
  if (character < 0x100 || within(character, 0x130, 0x131)) return character;
  if (within(character, 0x100, 0x137) || within(character, 0x14A, 0x177))
    return upper_of_pair(character, true);
  if (within(character, 0x139, 0x148) || within(character, 0x179, 0x17E))
    return upper_of_pair(character, false);
  return character;
}

char32_t upper_greek(char32_t character) {
  if (character == 0x3AC) return 0x386;
  if (within(character, 0x3AD, 0x3AF)) return character - 0x25;
  if (character == 0x3C2) return 0x3A3;
  if (within(character, 0x3B1, 0x3CB)) return character - 0x20;
  if (character == 0x3CC) return 0x38C;
  if (within(character, 0x3CD, 0x3CE)) return character - 0x3F;
  return character;
}

char32_t upper_cyrillic(char32_t character) {
  if (within(character, 0x430, 0x44F)) return character - 0x20;
  if (within(character, 0x450, 0x45F)) return character - 0x50;
  if (character == 0x4CF) return 0x4C0;
  if (within(character, 0x4C1, 0x4CE)) return upper_of_pair(character, false);
  const bool paired =
      within(character, 0x460, 0x481) || within(character, 0x48A, 0x4BF) || within(character, 0x4D0, 0x52F);
  return paired ? upper_of_pair(character, true) : character;
}

}  // namespace

char32_t next_long_character(std::string_view text, std::size_t& at) {
  const auto lead = static_cast<unsigned char>(text[at++]);
  const Sequence sequence = sequence_of(lead);
  if (sequence.length == 0 || text.size() - at < sequence.length - 1) return kStrayByte + lead;

  char32_t character = sequence.lead_bits;
  for (std::size_t index = 0; index + 1 < sequence.length; ++index) {
    const auto byte = static_cast<unsigned char>(text[at + index]);
    if ((byte & 0xC0) != 0x80) return kStrayByte + lead;
    character = (character << 6) | (byte & 0x3FU);
  }
  const bool valid =
      character >= sequence.smallest && character < kStrayByte && !within(character, 0xD800, 0xDFFF);
  if (!valid) return kStrayByte + lead;
  at += sequence.length - 1;
  return character;
}

void append_character(std::string& text, char32_t character) {
  const auto put = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
  if (character < 0x80) {
    put(character);
  } else if (character < 0x800) {
    put(0xC0 | (character >> 6));
    put(0x80 | (character & 0x3F));
  } else if (character < 0x10000) {
    put(0xE0 | (character >> 12));
    put(0x80 | ((character >> 6) & 0x3F));
    put(0x80 | (character & 0x3F));
  } else if (character < kStrayByte) {
    put(0xF0 | (character >> 18));
    put(0x80 | ((character >> 12) & 0x3F));
    put(0x80 | ((character >> 6) & 0x3F));
    put(0x80 | (character & 0x3F));
  } else {
    put(character - kStrayByte);
  }
}

char32_t upper_long_character(char32_t character) {
  if (character < 0x180) return upper_latin(character);
  if (within(character, 0x370, 0x3FF)) return upper_greek(character);
  if (within(character, 0x400, 0x52F)) return upper_cyrillic(character);
  return character;
}

}  // namespace vorlund
