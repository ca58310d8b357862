#pragma once
// The settings file: named after the program with ".ini", beside the program,
// read once at start-up and never written. Windows profile semantics: sections
// and keys are found whatever their case, a value is the whole text after "="
// with blanks at both ends removed ("50;100;200" is one value), and a missing
// file or key gives the key's default. Numbers follow the leading-number rule.
// A ";" inside a value belongs to it ("50 ;100" reads "50 ;100").

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quilmar {

struct SettingsValues {
    /// [Setting] Scales, blanks removed at both ends and a trailing NUL dropped.
    std::string scales = "50;100;200;400;800;1500;2000;3000;4000";
    float scaleMetric = 576.0f;   ///< [Setting] ScaleMetric, twips per metre at scale 1
    float scaleEnglish = 1440.0f; ///< [Setting] ScaleEnglish, twips per foot at scale 1
    /// [PrintOptions] ReferencePoints, ReferenceList, PropertyDescr, Frames,
    /// BalanceGap, in that order; rounded to whole numbers (half to even), 1 is on.
    std::array<int16_t, 5> printOptions{1, 1, 1, 0, 0};
};

/// Settings files larger than this (bytes) are not read: a real one is a few lines.
inline constexpr std::uintmax_t kMaxSettingsFileBytes = 1024u * 1024u;

/// Reads @p iniPath (UTF-8) through readSettingsText. A missing or unreadable
/// file, anything but a regular file, and a file over kMaxSettingsFileBytes give
/// the defaults.
SettingsValues readSettings(const std::string &iniPath);

/// The settings in the text of a settings file (any bytes; a NUL ends only the
/// line it is in, as when the file is read). Never throws.
SettingsValues readSettingsText(std::string_view text);

/// The numeric items of the scale box for a Scales text: each piece up to ";"
/// read by the leading-number rule and written as the classic number-to-text
/// conversion does, with a blank where a positive number's sign would go
/// ("50" -> " 50", "0.5" -> " .5", "" -> " 0"). An empty text gives no item.
std::vector<std::string> scaleItems(const std::string &scales);

} // namespace quilmar
