#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <tuple>

#include "map_file.h"
#include "table_builder.h"
#include "temp_folder.h"

using namespace quilmar;

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

// @p n course lines of ten empty cells.
std::string blankLines(int n) { return n > 0 ? blankLines(n - 1) + std::string(9, '\t') + "\r\n" : ""; }

class MapFileTest : public ::testing::Test {
protected:
    std::string put(const std::string &bytes, const std::string &name = "t.map") { return m_folder.write(name, bytes); }

    test::TempFolder m_folder;
    const fs::path &m_dir = m_folder.path();
};

TEST(MapFileBytes, TailAndCells)
{
    const struct { std::string description; Units unit; std::string scale; std::string tail; } cases[] = {
        {"Lot 7", Units::Feet, "Standard", "~Lot 7\r\n*spec=0Standard\r\n"},
        {"a\r\nb", Units::Meters, "1200", "~a\r\nb\r\n*spec=11200\r\n"},
        {"a\nb\rc", Units::Other, "", "~a\r\nb\r\nc\r\n*spec=2\r\n"},   // lone LF, lone CR -> CR LF
        {"\xC3\xA9 45\xC2\xB0 \xC5\x82", Units::Feet, "1\xE2\x82\xAC", "~\xE9 45\xB0 ?\r\n*spec=01\x80\r\n"}};
    for (const auto &c : cases) {
        const std::string bytes = mapFileBytes(CourseTable{}, c.description, c.unit, c.scale);
        EXPECT_EQ(bytes, blankLines(16) + c.tail) << c.description;
    }
    // The cells of one line.
    CourseTable table = test::makeTable({{"N", "12", "30", "0", "E", "", "", "", "", "B"}});
    table.at(0, ColDistance) = 328.1;           // a number cell, as global conversion leaves it
    table.at(0, ColRadius) = "a\tb\xC3\xA9";    // TAB would split the line: written as a space
    const std::string bytes = mapFileBytes(table, "", Units::Feet, "Standard");
    EXPECT_EQ(bytes.substr(0, bytes.find("\r\n")), "N\t12\t30\t0\tE\t328.1\t\ta b\xE9\t\tB");
}

TEST(MapFileBytes, CourseLinesEndAtHighestPlusFiveClippedAtRow201)
{
    // An empty table has highest 10: rows 0..15.
    const std::pair<int, int> highestAndLines[] = {{10, 16}, {150, 156}, {196, 202}, {197, 202},
                                                   {202, 202}, {-5, 1}, {-6, 0}};
    for (const auto &[highest, lines] : highestAndLines) {
        CourseTable table;
        table.highest = static_cast<int16_t>(highest);
        const std::string bytes = mapFileBytes(table, "", Units::Feet, "Standard");
        EXPECT_EQ(bytes, blankLines(lines) + "~\r\n*spec=0Standard\r\n") << highest;
    }
}

TEST_F(MapFileTest, RoundTripThroughWindows1252)
{
    CourseTable table;
    table.at(0, ColNS) = "N";
    table.at(0, ColDeg) = "45\xC2\xB0";         // 45°
    table.at(0, ColDistance) = 328.1;
    table.at(1, ColTag) = "\xC3\xA9t\xC3\xA9"; // été
    table.at(30, ColRadius) = "5\0" "00"s;         // a NUL must not cut the file short
    table.gethighest();                         // 31 -> rows 0..36
    const std::string path = put("old", "deed.map");
    const std::string bytes = mapFileBytes(table, "Lot 7\nWest", Units::Meters, "1200");
    ASSERT_TRUE(writeMapFile(path, bytes, nullptr));
    EXPECT_EQ(test::fileBytes(path), bytes);

    const MapReadResult read = readMapFile(path);
    ASSERT_EQ(read.rows.size(), 37u);
    CourseTable back;
    storeRows(read.rows, back);
    // The number comes back as text.
    EXPECT_EQ(std::tuple(back.at(0, ColDeg), back.at(0, ColDistance), back.at(1, ColTag), back.at(30, ColRadius)),
              std::tuple(Cell("45\xC2\xB0"), Cell("328.1"), Cell("\xC3\xA9t\xC3\xA9"), Cell("5\0" "00"s)));
    const TailSplit split = splitTail(read.description);
    EXPECT_EQ(std::tuple(split.unit, split.scale, split.description),
              std::tuple(std::optional<char>('1'), std::string("1200"), std::string("Lot 7\r\nWest\r\n")));
}

TEST_F(MapFileTest, EachSaveAndOpenAddsOneTrailingLineBreak)
{
    std::string description = "Lot 7";
    const std::string path = (m_dir / "deed.map").string();
    for (const std::string expected : {"Lot 7\r\n", "Lot 7\r\n\r\n", "Lot 7\r\n\r\n\r\n"}) {
        ASSERT_TRUE(writeMapFile(path, mapFileBytes(CourseTable{}, description, Units::Feet, "Standard"), nullptr));
        description = splitTail(readMapFile(path).description).description;
        EXPECT_EQ(description, expected);
    }
}

TEST_F(MapFileTest, ReadsLinesOfEveryShape)
{
    const MapFileRow nRow{"N", "1"};
    const struct { const char *what; std::string bytes; std::vector<MapFileRow> rows; bool reached;
                   std::string description; } cases[] = {
        {"CR LF", "N\t1\r\n~Lot\r\n*spec=0x\r\n", {nRow}, true, "Lot\r\n*spec=0x"},
        {"LF only", "N\t1\n\t\t\n~Lot\nb\n", {nRow, {}}, true, "Lot\r\nb"},
        {"CR only", "N\t1\r\t\t\r~Lot\rb\r", {nRow, {}}, true, "Lot\r\nb"},
        {"no line end at the end", "N\t1\n~a\r\n*spec=1x", {nRow}, true, "a\r\n*spec=1x"},
        {"empty lines kept in description", "~\r\n\r\nz\r\n\r\n", {}, true, "\r\n\r\nz\r\n"},
        {"no ~ line", "N\t1\r\nS", {nRow, {"S"}}, false, ""}, {"empty file", "", {}, false, ""},
        {"~ only at line start", "a~\t~\r\n~~b", {{"a~", "~"}}, true, "~b"},
        {"three fields", "a\tb\tc", {{"a", "b", "c"}}, false, ""},
        {"fourteen fields", "1\t2\t3\t4\t5\t6\t7\t8\t9\t10\t11\t12\t13\t14",
         {{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}}, false, ""},
        {"NUL bytes", "N\0X\t1\r\n~\0"s, {{"N\0X"s, "1"}}, true, "\0"s},
        {"Windows-1252", "\xE9\t45\xB0\r\n~\x80", {{"\xC3\xA9", "45\xC2\xB0"}}, true, "\xE2\x82\xAC"}};
    for (const auto &c : cases) {
        const MapReadResult read = readMapFile(put(c.bytes));
        EXPECT_EQ(std::tuple(read.status, read.rows, read.reachedDescription, read.description, read.droppedRows),
                  std::tuple(MapReadStatus::Ok, c.rows, c.reached, c.description, 0u)) << c.what;
    }
}

TEST_F(MapFileTest, LinesPastRow201AreDroppedAndALongLineKept)
{
    std::string bytes;
    for (int r = 0; r < 250; ++r)
        bytes += std::to_string(r) + "\r\n";
    const MapReadResult read = readMapFile(put(bytes + "~d\r\n"));
    ASSERT_EQ(read.rows.size(), 202u);
    EXPECT_EQ(std::tuple(read.rows[201][0], read.droppedRows, read.description), std::tuple("201", 250u - 202, "d"));
    // A one-megabyte line is kept whole.
    const MapReadResult wide = readMapFile(put(std::string(1 << 20, 'x') + "\tE", "wide.map"));
    ASSERT_EQ(wide.rows.size(), 1u);
    EXPECT_EQ(wide.rows[0][0].size(), 1u << 20);
    EXPECT_EQ(wide.rows[0][1], "E");
}

TEST_F(MapFileTest, BinaryJunkNeverBreaksTheReader)
{
    std::mt19937 random(20240611);
    for (const std::size_t size : {1u, 2u, 3u, 17u, 4096u, 100000u, 1u << 20}) {
        std::string junk(size, '\0');
        for (char &c : junk)
            c = static_cast<char>(random() % 8 == 0 ? "\r\n\t~"[random() % 4] : random() % 256);
        const MapReadResult read = readMapFile(put(junk));
        ASSERT_EQ(read.status, MapReadStatus::Ok) << size;
        EXPECT_LE(read.rows.size(), 202u);
        for (const MapFileRow &row : read.rows) // a cell never carries a line or cell separator
            for (const std::string &cell : row)
                EXPECT_EQ(cell.find_first_of("\t\r\n"), std::string::npos);
        CourseTable table;
        storeRows(read.rows, table);
        splitTail(read.description);
    }
}

TEST_F(MapFileTest, FailuresToOpenAndToSave)
{
    const std::string missing = (m_dir / "gone.map").string();
    const MapReadResult notFound = readMapFile(missing);
    EXPECT_EQ(notFound.status, MapReadStatus::NotFound);
    EXPECT_EQ(notFound.message, "File " + missing + " not found.");

    EXPECT_EQ(readMapFile((m_dir / "no folder" / "a.map").string()).status, MapReadStatus::Failed);
    EXPECT_EQ(readMapFile(m_dir.string()).status, MapReadStatus::Failed);
    const std::string huge = put("", "huge.map");
    fs::resize_file(huge, kMaxMapFileBytes + 1); // sparse: costs no disk
    EXPECT_EQ(readMapFile(huge).status, MapReadStatus::Failed);

    // The safe write's reason reaches the caller.
    std::string error;
    EXPECT_FALSE(writeMapFile((m_dir / "no folder" / "a.map").string(), "x", &error));
    EXPECT_FALSE(error.empty());
}

TEST(SplitTail, TakesUnitScaleAndDescriptionApart)
{
    const struct { std::string text; bool found; std::optional<char> unit; std::string scale, description; } cases[] = {
        {"Lot 7\r\n*spec=0Standard", true, '0', "Standard", "Lot 7\r\n"},
        {"Lot 7", false, std::nullopt, "Standard", "Lot 7"}, {"*spec=", true, std::nullopt, "", ""},
        {"x*spec=2", true, '2', "", "x"},
        {"a*spec=1b*spec=0c", true, '1', "b*spec=0c", "a"},     // the first one counts
        {"*spec=9 1:600", true, '9', " 1:600", ""},
        {"*spec=\xC3\xA9" "12", true, '?', "12", ""}};       // é as the unit
    for (const auto &c : cases) {
        const TailSplit s = splitTail(c.text);
        EXPECT_EQ(std::tuple(s.found, s.unit, s.scale, s.description),
                  std::tuple(c.found, c.unit, c.scale, c.description)) << c.text;
    }
}

TEST(StoreRows, LeavesRowsPastTheFileAsTheyWere)
{
    CourseTable table;
    for (int r = 0; r < 40; ++r)
        table.at(r, ColDistance) = "old";
    storeRows(std::vector<MapFileRow>(12, MapFileRow{"N", "", "", "", "", "new"}), table);
    EXPECT_EQ(std::tuple(table.at(11, ColNS), table.at(11, ColDistance), table.at(12, ColNS), table.at(12, ColDistance)),
              std::tuple(Cell("N"), Cell("new"), Cell(""), Cell("old")));
    table.gethighest();
    EXPECT_EQ(table.highest, 40);
}

TEST(WithMapExtension, AddsMapUnlessFourthCharacterFromEndIsAPoint)
{
    const std::pair<std::string, std::string> cases[] = {
        {"deed", "deed.map"}, {"a.txt", "a.txt"}, {"ab", "ab.map"}, {"a.bc.d", "a.bc.d.map"}, {"", ".map"},
        {"a.b.c", "a.b.c"},        // ".b.c": the fourth character from the end is a point
        {".map", ".map"}, {"a.tx", "a.tx.map"}, {"C:\\Deeds\\lot7", "C:\\Deeds\\lot7.map"},
        {"deed.\xC3\xA9t\xC3\xA9", "deed.\xC3\xA9t\xC3\xA9"},   // deed.été: counted in characters
        {"x\xC3\xA9t\xC3\xA9", "x\xC3\xA9t\xC3\xA9.map"}};
    for (const auto &[chosen, expected] : cases)
        EXPECT_EQ(withMapExtension(chosen), expected) << chosen;
}

} // namespace
