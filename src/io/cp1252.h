#pragma once
// Map files are Windows-1252 text, while the program holds every cell, the
// property description and the scale text as UTF-8. These two functions convert
// between the two at the file's edge, so nothing else needs to know the code page.

#include <string>
#include <string_view>

namespace quilmar {

/// Converts Windows-1252 bytes to UTF-8. Every byte has a character: 0x00-0x7F
/// stay as they are (NUL included), 0x80-0x9F take the code page's letters and
/// signs ("€", "‚", ...), and the five unassigned bytes 0x81, 0x8D, 0x8F, 0x90 and
/// 0x9D become the control characters U+0081, U+008D, U+008F, U+0090 and U+009D,
/// as the platform itself does. Never fails.
std::string cp1252ToUtf8(std::string_view bytes);

/// Converts UTF-8 text to Windows-1252 bytes. A character the code page cannot
/// hold becomes one "?"; so does every byte that is not part of a well-formed
/// UTF-8 sequence (stray continuation bytes, cut-off sequences, overlong forms,
/// surrogates, values past U+10FFFF). U+0081, U+008D, U+008F, U+0090 and U+009D
/// go back to their bytes, so any file content survives a round trip. Never fails.
std::string utf8ToCp1252(std::string_view text);

} // namespace quilmar
