#pragma once
// The one way Quilmar writes and reads whole files. Every output (map files,
// Quick Backup, pictures, printouts to PDF, exports) goes through
// writeFileSafely, so that a full disk, a killed program or a strange target
// never costs the user the file they had; every input goes through
// readFileLimited, so that every "cannot read" names its reason.
//
// File names are UTF-8. The writer is POSIX-only today (the program's desktop
// targets are Linux); the reader is portable.

#include <cstdint>
#include <string>
#include <string_view>

namespace quilmar {

/// Why a file could not be read or written; the text in FileOutcome says it in words.
enum class FileProblem { None, NotFound, NotRegular, TooLarge, NoPermission, Other };

struct FileOutcome {
    bool ok = false;
    FileProblem problem = FileProblem::None;
    /// One English sentence naming the file and the reason, e.g.
    /// "Cannot write /x/deed.map: No space left on device."; empty when ok.
    std::string error;
};

/// Writes @p bytes as the whole content of @p path.
///
/// The bytes go to a fresh temporary file in the target's folder; every write,
/// the sync and the close are checked, and only then is the temporary renamed
/// over the target (and the folder synced), so the old file stays intact on any
/// failure and the temporary file is removed.
/// - "-" (and /dev/stdout, /dev/fd/1) writes to standard output instead.
/// - A link to a regular file is followed and the file it points to is replaced.
/// - A target that exists but is not a regular file (folder, device, FIFO,
///   socket) and a dangling or looping link are refused without being opened,
///   so a FIFO never blocks the program.
/// - An existing target keeps its permission bits; a read-only one is refused
///   as a plain write would be.
FileOutcome writeFileSafely(const std::string &path, std::string_view bytes);

/// Reads the whole of @p path into @p bytes.
/// Refuses, with the reason in the outcome, a missing file ("no such file"), a
/// folder or anything else that is not a regular file (never opened, so a FIFO
/// does not block), a file over @p maxBytes (the limit is named), and a file the
/// user may not read. "-" reads standard input (up to @p maxBytes).
FileOutcome readFileLimited(const std::string &path, std::uintmax_t maxBytes, std::string &bytes);

/// A byte count as people read a limit: "64 MiB", "512 KiB" or "100 bytes"
/// (whole units only where the count is a whole multiple; otherwise bytes).
std::string describeBytes(std::uintmax_t bytes);

} // namespace quilmar
