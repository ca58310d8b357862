#pragma once
// File names reach the io folder as UTF-8 (the window converts them once). A
// std::filesystem::path built from a plain std::string would read the bytes in
// the platform's narrow code page instead, which breaks accented folder names on
// Windows; this builds it from the UTF-8 bytes on every platform.

#include <filesystem>
#include <string>

namespace quilmar {

/// Path for the UTF-8 file name @p name; invalid UTF-8 is passed on as it stands.
inline std::filesystem::path pathFromUtf8(const std::string &name)
{
    return std::filesystem::path(std::u8string(name.begin(), name.end()));
}

} // namespace quilmar
