#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <set>

#include "cli.h"

using namespace quilmar;

namespace {

const std::string kBlunder = QUILMAR_TEST_DATA "/blunder.map";

int runClosureCommand(const Args &args, std::string &out, std::string &err)
{
    Args line{"closure"};
    line.insert(line.end(), args.begin(), args.end());
    CommandIo io;
    const int status = runCommandLine(line, io);
    out += io.out;
    err += io.err;
    return status;
}

std::set<QString> keysOf(const QJsonObject &o)
{
    const QStringList keys = o.keys();
    return {keys.begin(), keys.end()};
}

} // namespace

TEST(CliClosure, JsonKeepsItsContract)
{
    // blunder.map: a four-sided deed whose third call reads N for S.
    std::string out, err;
    ASSERT_EQ(runClosureCommand({"--json", kBlunder}, out, err), 0) << err;
    const QJsonObject root = QJsonDocument::fromJson(QByteArray::fromStdString(out)).object();
    const QJsonArray lots = root["lots"].toArray();
    ASSERT_EQ(lots.size(), 1);
    const QJsonObject lot = lots[0].toObject();
    for (const char *key : {"first_row", "last_row", "gap", "perimeter", "precision", "compass", "transit", "suggestions"})
        EXPECT_TRUE(lot.contains(key)) << key;
    EXPECT_EQ(lot["first_row"].toInt(), 0);
    EXPECT_EQ(lot["last_row"].toInt(), 4);
    const std::set<QString> gapKeys{"distance", "bearing", "north", "east"};
    EXPECT_EQ(keysOf(lot["gap"].toObject()), gapKeys);
    EXPECT_NEAR(lot["perimeter"].toDouble(), 2246.43, 1e-6);
    EXPECT_EQ(lot["compass"].toArray().size(), 4);
    EXPECT_EQ(keysOf(lot["compass"].toArray()[0].toObject()),
              (std::set<QString>{"row", "north", "east", "bearing", "distance", "arc", "bearing_change",
                                 "distance_change", "curve"}));

    const QJsonObject best = lot["suggestions"].toArray()[0].toObject();
    EXPECT_EQ(keysOf(best), (std::set<QString>{"row", "kind", "cells", "gap", "precision"}));
    EXPECT_EQ(best["row"].toInt(), 3);
    EXPECT_EQ(best["kind"].toString(), "ns-flip");
    const QJsonArray cells = best["cells"].toArray();
    ASSERT_EQ(cells.size(), 10);
    EXPECT_EQ(cells[0].toString(), "S");
    EXPECT_EQ(cells[5].toString(), "605.31");
    EXPECT_EQ(keysOf(best["gap"].toObject()), gapKeys);
    EXPECT_GT(best["precision"].toDouble(), 20000.0);
}

TEST(CliClosure, TextReportStatusAndUsage)
{
    std::string out, err;
    ASSERT_EQ(runClosureCommand({kBlunder}, out, err), 0);
    for (const char *line : {"Plotter's gap     Gap = 1,200.00.  S 0\u00b0 0' 1'' W (53.42%)", "Precision         1:1 (worse than 1:5,000, 1:10,000, 1:15,000 and 1:20,000)\n",
                             "1. ns-flip: row 4 reads S 7 35 40 W 605.31"})
        EXPECT_NE(out.find(line), std::string::npos) << line << "\n" << out;

    out.clear();
    EXPECT_EQ(runClosureCommand({"no-such-deed.map"}, out, err), 1);
    EXPECT_NE(err.find("File no-such-deed.map not found."), std::string::npos) << err;
    EXPECT_EQ(runClosureCommand({}, out, err), 2);
    EXPECT_EQ(runClosureCommand({"--frobnicate", kBlunder}, out, err), 2);
    EXPECT_EQ(runClosureCommand({kBlunder, kBlunder}, out, err), 2);
}
