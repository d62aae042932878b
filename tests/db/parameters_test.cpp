#include "toolkit/db/fault.h"
#include "toolkit/db/parameters.h"

#include <QDate>
#include <gtest/gtest.h>

namespace {

const db::Parameters values{{QStringLiteral("tanggal_awal"), QDate(2026, 10, 1)},
                            {QStringLiteral("id"), 7},
                            {QStringLiteral("id_2"), 2.5},
                            {QStringLiteral("nama"), QStringLiteral("O'Brien \\ Co")},
                            {QStringLiteral("kosong"), QVariant()}};

} // namespace

TEST(BindParameters, ReplacesNamesOutsideTextsNamesAndComments) {
    const std::pair<const char*, const char*> cases[] = {
        {"a=:id and b=:ID", "a=7 and b=7"},
        {":id_2:id", "2.57"},
        {"DATE(x)>=DATE(:tanggal_awal)", "DATE(x)>=DATE('2026-10-01')"},
        {"n=:nama", "n='O''Brien \\\\ Co'"},
        {"x=:kosong", "x=NULL"},
        {"':id' \":id\" `:id` :id", "':id' \":id\" `:id` 7"},
        {"'it''s :id' :id", "'it''s :id' 7"},
        {"'a\\':id' :id", "'a\\':id' 7"},
        {"/* :x */ :id -- :x\n:id # :x", "/* :x */ 7 -- :x\n7 # :x"},
        {"@a := 1, '10:30'", "@a := 1, '10:30'"},
        {"'open :id", "'open :id"},
    };
    for (const auto& [sql, expected] : cases)
        EXPECT_EQ(db::bindParameters(QString::fromUtf8(sql), values).toStdString(), expected);
    EXPECT_THROW((void)db::bindParameters(QStringLiteral("select :nobody"), values), db::Fault);
}
