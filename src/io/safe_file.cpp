// Whole-file writes by temporary file and rename, and size-limited reads that
// say why they failed.

#include "safe_file.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <iostream>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace quilmar {

namespace {

FileOutcome problem(FileProblem kind, const std::string &verb, const std::string &path, const std::string &reason)
{
    return {false, kind, "Cannot " + verb + " " + path + ": " + reason + "."};
}

std::string systemText(int err)
{
    return std::strerror(err);
}

std::string folderOf(const std::string &path)
{
    const std::size_t slash = path.find_last_of('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

// Follows links to the file a write would replace (the caller has made sure
// that the chain ends at a regular file or at a name still free).
std::string resolveTarget(const std::string &path)
{
    std::string target = path;
    for (int hops = 0; hops < 40; ++hops) {
        struct stat st {};
        if (lstat(target.c_str(), &st) != 0 || !S_ISLNK(st.st_mode))
            return target;
        std::string link(static_cast<std::size_t>(st.st_size > 0 ? st.st_size : 4096), '\0');
        const ssize_t n = readlink(target.c_str(), link.data(), link.size());
        if (n < 0)
            return target;
        link.resize(static_cast<std::size_t>(n));
        target = (!link.empty() && link.front() == '/') ? link : folderOf(target) + "/" + link;
    }
    return target;
}

bool isStandardOutputName(const std::string &path)
{
    return path == "-" || path == "/dev/stdout" || path == "/dev/fd/1" || path == "/proc/self/fd/1";
}

std::string kindOf(mode_t mode)
{
    if (S_ISDIR(mode))
        return "it is a folder";
    if (S_ISFIFO(mode))
        return "it is a pipe (FIFO), not a file";
    if (S_ISSOCK(mode))
        return "it is a socket, not a file";
    if (S_ISCHR(mode) || S_ISBLK(mode))
        return "it is a device, not a file";
    return "it is not a regular file";
}

bool writeAll(int fd, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t n = ::write(fd, bytes.data(), bytes.size());
        if (n < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(n));
    }
    return true;
}

FileOutcome writeToStandardOutput(std::string_view bytes)
{
    std::cout.flush();
    if (!writeAll(STDOUT_FILENO, bytes))
        return problem(FileProblem::Other, "write", "standard output", systemText(errno));
    return {true, FileProblem::None, {}};
}

} // namespace

FileOutcome writeFileSafely(const std::string &path, std::string_view bytes)
{
    if (isStandardOutputName(path))
        return writeToStandardOutput(bytes);
    if (path.empty())
        return problem(FileProblem::Other, "write", "the file", "no file name was given");

    // Look before opening anything: a FIFO opened for writing would block, and a
    // device or folder replaced by a file would break the system or lose data.
    struct stat old {};
    bool exists = stat(path.c_str(), &old) == 0;
    if (!exists && errno == ELOOP)
        return problem(FileProblem::NotRegular, "write", path, "it is a link that loops");
    struct stat self {};
    if (!exists && lstat(path.c_str(), &self) == 0 && S_ISLNK(self.st_mode))
        return problem(FileProblem::NotRegular, "write", path, "it is a link to a file that does not exist");
    if (exists && !S_ISREG(old.st_mode))
        return problem(FileProblem::NotRegular, "write", path, kindOf(old.st_mode));
    const std::string target = resolveTarget(path);
    // Replacing by rename would get past a read-only file; refuse as a plain write would.
    if (exists && access(target.c_str(), W_OK) != 0)
        return problem(FileProblem::NoPermission, "write", path, "the file is read-only");

    // A fresh name beside the target, so the final rename stays on one file system.
    std::mt19937 random{std::random_device{}()};
    std::string temp;
    int fd = -1;
    for (int attempt = 0; attempt < 100 && fd < 0; ++attempt) {
        temp = target + ".~" + std::to_string(random() % 1000000u) + ".tmp";
        fd = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd < 0 && errno != EEXIST)
            break;
    }
    if (fd < 0) {
        const int err = errno;
        return problem(err == EACCES || err == EROFS ? FileProblem::NoPermission : FileProblem::Other, "write",
                       path, systemText(err));
    }

    const auto abandon = [&](int err) {
        ::close(fd);
        ::unlink(temp.c_str());
        return problem(FileProblem::Other, "write", path, systemText(err));
    };
    if (!writeAll(fd, bytes) || ::fsync(fd) != 0)
        return abandon(errno);
    if (exists)
        ::fchmod(fd, old.st_mode & 07777); // best effort: keep the old file's permissions
    if (::close(fd) != 0) {
        const int err = errno;
        ::unlink(temp.c_str());
        return problem(FileProblem::Other, "write", path, systemText(err));
    }
    if (::rename(temp.c_str(), target.c_str()) != 0) {
        const int err = errno;
        ::unlink(temp.c_str());
        return problem(FileProblem::Other, "write", path, systemText(err));
    }
    // The rename itself must survive a power cut too.
    const int dir = ::open(folderOf(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dir >= 0) {
        ::fsync(dir);
        ::close(dir);
    }
    return {true, FileProblem::None, {}};
}

FileOutcome readFileLimited(const std::string &path, std::uintmax_t maxBytes, std::string &bytes)
{
    bytes.clear();
    const bool standardInput = path == "-";
    const std::string name = standardInput ? "standard input" : path;
    int fd = STDIN_FILENO;
    if (!standardInput) {
        struct stat st {};
        if (stat(path.c_str(), &st) != 0) {
            const int err = errno;
            if (err == ENOENT)
                return problem(FileProblem::NotFound, "read", path, "there is no such file");
            return problem(err == EACCES ? FileProblem::NoPermission : FileProblem::Other, "read", path,
                           systemText(err));
        }
        if (!S_ISREG(st.st_mode))
            return problem(FileProblem::NotRegular, "read", path, kindOf(st.st_mode));
        if (static_cast<std::uintmax_t>(st.st_size) > maxBytes)
            return problem(FileProblem::TooLarge, "read", path,
                           "it is larger than the limit of " + describeBytes(maxBytes));
        fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
        if (fd < 0) {
            const int err = errno;
            return problem(err == EACCES ? FileProblem::NoPermission : FileProblem::Other, "read", path,
                           err == EACCES ? "you have no permission to read it" : systemText(err));
        }
        bytes.reserve(static_cast<std::size_t>(st.st_size));
    }
    char buffer[65536];
    for (;;) {
        const ssize_t n = ::read(fd, buffer, sizeof buffer);
        if (n == 0)
            break;
        if (n < 0) {
            if (errno == EINTR)
                continue;
            const int err = errno;
            if (!standardInput)
                ::close(fd);
            bytes.clear();
            return problem(FileProblem::Other, "read", name, systemText(err));
        }
        bytes.append(buffer, static_cast<std::size_t>(n));
        if (bytes.size() > maxBytes) { // the file grew, or standard input is endless
            if (!standardInput)
                ::close(fd);
            bytes.clear();
            return problem(FileProblem::TooLarge, "read", name,
                           "it is larger than the limit of " + describeBytes(maxBytes));
        }
    }
    if (!standardInput)
        ::close(fd);
    return {true, FileProblem::None, {}};
}

std::string describeBytes(std::uintmax_t bytes)
{
    constexpr std::uintmax_t kKiB = 1024, kMiB = kKiB * 1024, kGiB = kMiB * 1024;
    if (bytes >= kGiB && bytes % kGiB == 0)
        return std::to_string(bytes / kGiB) + " GiB";
    if (bytes >= kMiB && bytes % kMiB == 0)
        return std::to_string(bytes / kMiB) + " MiB";
    if (bytes >= kKiB && bytes % kKiB == 0)
        return std::to_string(bytes / kKiB) + " KiB";
    return std::to_string(bytes) + (bytes == 1 ? " byte" : " bytes");
}

} // namespace quilmar
