#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include "safe_file.h"
#include "temp_folder.h"

using namespace quilmar;

namespace {

namespace fs = std::filesystem;

using test::fileBytes;

class SafeFileTest : public ::testing::Test {
protected:
    fs::path put(const std::string &name, const std::string &bytes) { return m_folder.write(name, bytes); }
    // Nothing but the named entries is left in the folder: no temporary file.
    void expectOnly(std::initializer_list<std::string> names)
    {
        std::set<std::string> left;
        for (const auto &entry : fs::directory_iterator(m_dir))
            left.insert(entry.path().filename().string());
        EXPECT_EQ(left, std::set<std::string>(names));
    }
    test::TempFolder m_folder;
    const fs::path &m_dir = m_folder.path();
};

TEST_F(SafeFileTest, ReplacesAFileAndFollowsALinkToIt)
{
    const fs::path real = put("real.map", "old");
    fs::create_symlink("real.map", m_dir / "link.map");
    const FileOutcome out = writeFileSafely((m_dir / "link.map").string(), "new");
    ASSERT_TRUE(out.ok) << out.error;
    EXPECT_TRUE(fs::is_symlink(m_dir / "link.map")); // the link stays a link
    EXPECT_EQ(fileBytes(real), "new");
    expectOnly({"real.map", "link.map"});
}

// Each of these once got replaced by a regular file, or hung the program.
TEST_F(SafeFileTest, RefusesTargetsThatAreNotRegularFiles)
{
    ASSERT_EQ(mkfifo((m_dir / "fifo").c_str(), 0600), 0);
    fs::create_directory(m_dir / "folder");
    fs::create_symlink("missing.map", m_dir / "dangling");
    fs::create_symlink("loop2", m_dir / "loop1");
    fs::create_symlink("loop1", m_dir / "loop2");
    const struct { std::string path; std::string reason; } cases[] = {
        {"/dev/null", "it is a device, not a file"}, {(m_dir / "fifo").string(), "it is a pipe (FIFO), not a file"},
        {(m_dir / "folder").string(), "it is a folder"},
        {(m_dir / "dangling").string(), "it is a link to a file that does not exist"},
        {(m_dir / "loop1").string(), "it is a link that loops"}};
    for (const auto &c : cases) {
        const FileOutcome out = writeFileSafely(c.path, "x");
        EXPECT_FALSE(out.ok) << c.path;
        EXPECT_EQ(out.error, "Cannot write " + c.path + ": " + c.reason + ".");
    }
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_TRUE(fs::is_fifo(m_dir / "fifo"));
    EXPECT_TRUE(fs::is_symlink(m_dir / "dangling"));
    expectOnly({"fifo", "folder", "dangling", "loop1", "loop2"});
}

TEST_F(SafeFileTest, AFullDiskKeepsTheOldFile)
{
    // A 64 KiB file system of our own; mounting needs root, as CI has.
    const fs::path small = m_dir / "small";
    fs::create_directory(small);
    if (mount("tmpfs", small.c_str(), "tmpfs", 0, "size=64k") != 0)
        GTEST_SKIP() << "cannot mount a small file system here";
    std::ofstream(small / "deed.map", std::ios::binary) << "the old deed";
    const FileOutcome out = writeFileSafely((small / "deed.map").string(), std::string(256 * 1024, 'x'));
    EXPECT_FALSE(out.ok);
    EXPECT_NE(out.error.find("No space left on device"), std::string::npos) << out.error;
    EXPECT_EQ(fileBytes(small / "deed.map"), "the old deed");
    EXPECT_EQ(std::distance(fs::directory_iterator(small), fs::directory_iterator()), 1);
    umount(small.c_str());
}

TEST_F(SafeFileTest, ReadNamesItsReason)
{
    put("big.map", std::string(2048, 'x'));
    ASSERT_EQ(mkfifo((m_dir / "fifo").c_str(), 0600), 0);
    const struct { std::string path; FileProblem problem; std::string reason; } cases[] = {
        {(m_dir / "none.map").string(), FileProblem::NotFound, "there is no such file"},
        {m_dir.string(), FileProblem::NotRegular, "it is a folder"},
        {(m_dir / "fifo").string(), FileProblem::NotRegular, "it is a pipe (FIFO), not a file"},
        {(m_dir / "big.map").string(), FileProblem::TooLarge, "it is larger than the limit of 1 KiB"}};
    std::string bytes;
    for (const auto &c : cases) {
        const FileOutcome out = readFileLimited(c.path, 1024, bytes);
        EXPECT_EQ(out.problem, c.problem) << c.path;
        EXPECT_EQ(out.error, "Cannot read " + c.path + ": " + c.reason + ".");
    }
}

} // namespace
