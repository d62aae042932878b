#include "toolkit/db/fault.h"
#include "toolkit/db/parameters.h"

#include <QDate>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const db::Parameters values{{u"tanggal_awal"_s, QDate(2026, 10, 1)},
                            {u"id"_s, 7},
                            {u"id_2"_s, 2.5},
                            {u"nama"_s, u"O'Brien \\ Co"_s},
                            {u"kosong"_s, QVariant()}};

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
    EXPECT_THROW((void)db::bindParameters(u"select :nobody"_s, values), db::Fault);
}
