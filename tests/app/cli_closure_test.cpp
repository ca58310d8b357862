#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <set>

#include "cli_run.h"

using namespace quilmar;

namespace {

const std::string kBlunder = QUILMAR_TEST_DATA "/blunder.map";

test::CommandRun closure(const Args &args) { return test::runCli("closure", args); }

std::set<QString> keysOf(const QJsonObject &o)
{
    const QStringList keys = o.keys();
    return {keys.begin(), keys.end()};
}

} // namespace

TEST(CliClosure, JsonKeepsItsContract)
{
    // blunder.map: a four-sided deed whose third call reads N for S.
    const test::CommandRun r = closure({"--json", kBlunder});
    ASSERT_EQ(r.status, 0) << r.err;
    const QJsonObject root = QJsonDocument::fromJson(QByteArray::fromStdString(r.out)).object();
    const QJsonArray lots = root["lots"].toArray();
    ASSERT_EQ(lots.size(), 1);
    const QJsonObject lot = lots[0].toObject();
    for (const char *key : {"first_row", "last_row", "gap", "perimeter", "precision", "compass", "transit", "suggestions"})
        EXPECT_TRUE(lot.contains(key)) << key;
    EXPECT_EQ(lot["first_row"].toInt(), 0);
    EXPECT_EQ(lot["last_row"].toInt(), 4);
    EXPECT_EQ(keysOf(lot["gap"].toObject()), (std::set<QString>{"distance", "bearing", "north", "east"}));
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
    EXPECT_GT(best["precision"].toDouble(), 20000.0);
}

TEST(CliClosure, TextReportStatusAndUsage)
{
    const std::string out = closure({kBlunder}).out;
    for (const char *line : {"Plotter's gap     Gap = 1,200.00.  S 0\u00b0 0' 1'' W (53.42%)", "Precision         1:1 (worse than 1:5,000, 1:10,000, 1:15,000 and 1:20,000)\n",
                             "1. ns-flip: row 4 reads S 7 35 40 W 605.31"})
        EXPECT_NE(out.find(line), std::string::npos) << line << "\n" << out;

    const test::CommandRun missing = closure({"no-such-deed.map"});
    EXPECT_EQ(missing.status, 1);
    EXPECT_NE(missing.err.find("File no-such-deed.map not found."), std::string::npos) << missing.err;
    for (const Args &usage : {Args{}, Args{"--frobnicate", kBlunder}, Args{kBlunder, kBlunder}})
        EXPECT_EQ(closure(usage).status, 2);
}
