#pragma once
// The map file (*.map): the whole course table, the property description, the
// unit option and the scale, as Windows-1252 text with CR LF line ends. One
// course line per table row (ten cells separated by TAB), then "~" and the
// description, then the tail line: the tail marker, the unit digit and the
// scale text.
//
// These functions only build, write, read and take apart the file; asking the
// user (save question, overwrite question, file dialogs) and showing the loaded
// deed stay with the window. All texts handed in and out are UTF-8, and every
// file name is a UTF-8 path.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "course_table.h"
#include "units.h"

namespace quilmar {

/// The ten cells of one course line, columns 1 to 10 at indices 0 to 9, UTF-8.
using MapFileRow = std::array<std::string, CourseTable::kColumns>;

/// The marker that opens the map file's tail line (unit digit and scale text
/// follow it). The file format's own spelling; it is written nowhere else.
inline constexpr std::string_view kTailMarker = "*spec=";

/// Files larger than this (bytes) are refused by readMapFile: a full table with
/// generous cells and description is a few hundred kilobytes at most.
inline constexpr std::uintmax_t kMaxMapFileBytes = 64u * 1024u * 1024u;

// ---- Saving ---------------------------------------------------------------

/// The exact bytes of a map file for @p table.
/// Course lines for rows 0 to table.highest + 5, clipped to row 201 (and none at
/// all if that sum is negative); text cells are converted to Windows-1252, number
/// cells are written by generalNumber ("." as decimal point). A TAB, CR or LF
/// inside a cell would break the line apart, so each is written as a space.
/// @param descriptionUtf8 property description; its line breaks (CR LF, lone LF
///        or lone CR) are all written as CR LF
/// @param units the unit option, written as its digit
/// @param scaleTextUtf8 the scale box text as shown, e.g. "Standard" or "1200"
/// Characters that Windows-1252 cannot hold are written as "?".
/// @throws VbError Overflow for a number cell that is infinite or NaN (the
///         table's own computations never store one)
std::string mapFileBytes(const CourseTable &table, const std::string &descriptionUtf8,
                         Units units, const std::string &scaleTextUtf8);

/// Writes @p bytes as the file @p path in one piece: the bytes go to a temporary
/// file in the same folder, which then replaces @p path, so a failed write leaves
/// any old file untouched. A symbolic link is followed and its target replaced;
/// an existing file's permissions are kept.
/// @returns true on success; false when the folder is missing or read-only, the
///          disk is full, @p path names a folder, etc., with a one-line English
///          reason in @p error (if not null). The temporary file is removed on failure.
bool writeMapFile(const std::string &path, const std::string &bytes, std::string *error);

/// The file name that Save As uses for the name chosen in its dialog: when the
/// fourth character from the end (characters, not bytes) is not ".", ".map" is
/// appended. "deed" -> "deed.map", "a.txt" -> "a.txt", "a.bc.d" -> "a.bc.d.map";
/// "a.b.c" is kept as it is, since its fourth character from the end is a point.
/// A name of fewer than four characters always gets ".map".
std::string withMapExtension(const std::string &chosenName);

// ---- Opening --------------------------------------------------------------

enum class MapReadStatus {
    Ok,       ///< the file was read (a file with no "~" line is still Ok)
    NotFound, ///< no such file in an existing folder (the classic error 53)
    Failed,   ///< anything else: missing folder, a folder, a device, unreadable, too large
};

struct MapReadResult {
    MapReadStatus status = MapReadStatus::Failed;
    /// NotFound: the message to show, fileNotFoundMessage(path). Failed: a
    /// one-line English reason for logs; the window shows no message for it.
    std::string message;
    /// Course lines before the "~" line, row 0 first, at most 202 (rows 0 to 201).
    std::vector<MapFileRow> rows;
    /// Course lines past row 201: read over (so the description is still found)
    /// but not kept.
    std::size_t droppedRows = 0;
    /// True when a line beginning with "~" was found; otherwise the description,
    /// unit and scale of the window are to be left as they were.
    bool reachedDescription = false;
    /// The "~" line without its "~", then each later line up to end of file as
    /// CR LF + line, in UTF-8; still holds the tail line (see splitTail).
    std::string description;
};

/// Reads the map file @p path (UTF-8 path, taken as it stands: no extension is
/// added). A line ends at CR LF, LF or CR; a last line without a line end counts.
/// Each course line is cut at TAB: fields 0 to 9 become columns 1 to 10, missing
/// fields are empty, fields past the tenth are ignored. Any bytes are accepted
/// (NUL stays in the text); files over kMaxMapFileBytes and anything that is not
/// a regular file give Failed. Never throws.
MapReadResult readMapFile(const std::string &path);

/// Takes apart the bytes of a map file already in memory, exactly as
/// readMapFile does after reading them (readMapFile calls it). Always Ok;
/// the caller keeps to kMaxMapFileBytes. Never throws.
MapReadResult readMapBytes(std::string_view bytes);

/// The message for a file that does not exist: "File " + name + " not found.".
std::string fileNotFoundMessage(const std::string &name);

/// The description text taken apart at its first tail marker.
struct TailSplit {
    bool found = false;
    /// The character right after the tail marker, if any. The caller decides what other
    /// than '0', '1', '2' means. A non-ASCII character is reported as '?'.
    std::optional<char> unit;
    /// Text after the unit character to the end (may be empty); "Standard" when
    /// the tail marker was not found.
    std::string scale = "Standard";
    /// Text before the tail marker; the whole text when it was not found.
    std::string description;
};

/// Takes the unit, the scale and the description out of MapReadResult::description.
/// Deliberately keeps the CR LF that precedes the tail marker in the description, so each
/// save-and-open cycle adds one trailing line break; users' files depend on the
/// description coming back exactly so.
TailSplit splitTail(const std::string &text);

/// Puts field k of row r into table cell (r, k + 1) as text, for the rows given
/// (rows past 201 are ignored). The table is deliberately not cleared first: rows
/// the file does not reach keep their cells and reappear when scrolled to.
/// `highest` is not touched; the caller runs gethighest().
void storeRows(const std::vector<MapFileRow> &rows, CourseTable &table);

} // namespace quilmar
