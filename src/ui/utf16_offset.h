#pragma once
// The deed-text reader counts positions in bytes of UTF-8; Qt's text widgets
// count UTF-16 units. "°", "′", "″", "½" and curly quotes are two or three
// bytes but one unit; a character beyond the Basic Multilingual Plane is four
// bytes and two units. Every span shown in a Qt widget goes through here.

#include <cstddef>
#include <string_view>
#include <vector>

namespace quilmar {

/// The UTF-16 position of every byte offset 0 to size() of the UTF-8 @p text:
/// the number of UTF-16 units the characters before it take. An offset inside
/// a character counts that character. A byte that starts no valid character (a
/// stray continuation byte, a cut sequence) counts as one unit; text taken
/// from a Qt widget never has one. One pass: linear in the text's length.
std::vector<std::size_t> utf16Positions(std::string_view text);

/// The UTF-16 position of byte @p byteOffset alone, as utf16Positions gives
/// it; an offset past the end counts the whole text.
std::size_t utf16Offset(std::string_view text, std::size_t byteOffset);

} // namespace quilmar
