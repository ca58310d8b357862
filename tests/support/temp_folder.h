#pragma once
// A folder of the running test's own under the system's temporary folder
// (named after the process and the test), removed with all it holds when the
// test ends; and whole-file reads. Shared by the test folders.

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

namespace quilmar::test {

/// Every byte of @p path; "" when it cannot be read.
inline std::string fileBytes(const std::filesystem::path &path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

class TempFolder {
public:
    TempFolder()
    {
        const ::testing::TestInfo *t = ::testing::UnitTest::GetInstance()->current_test_info();
        m_path = std::filesystem::temp_directory_path() /
                 ("quilmar_" + std::to_string(::getpid()) + "_" + (t ? std::string(t->test_suite_name()) + "." + t->name() : "x"));
        std::filesystem::create_directories(m_path);
    }
    ~TempFolder()
    {
        std::error_code ignored; // a test may have left the folder read-only
        std::filesystem::permissions(m_path, std::filesystem::perms::owner_all, std::filesystem::perm_options::add,
                                     ignored);
        std::filesystem::remove_all(m_path, ignored);
    }
    TempFolder(const TempFolder &) = delete;
    TempFolder &operator=(const TempFolder &) = delete;

    const std::filesystem::path &path() const { return m_path; }
    /// The path of @p name in the folder.
    std::string file(const std::string &name) const { return (m_path / name).string(); }
    /// Writes @p bytes as @p name in the folder; returns its path.
    std::string write(const std::string &name, const std::string &bytes) const
    {
        std::ofstream(m_path / name, std::ios::binary) << bytes;
        return file(name);
    }

private:
    std::filesystem::path m_path;
};

} // namespace quilmar::test
