#include "tools/company/texts.h"

#include <gtest/gtest.h>

namespace {

std::string outcome(const char* table) {
    try {
        QStringList lines;
        for (const QStringList& row :
             company::textRows(QString::fromUtf8(table), {QStringLiteral("a"), QStringLiteral("b")}))
            lines << row.join(u'|');
        return lines.join(u'/').toStdString();
    } catch (const std::exception& fault) {
        return fault.what();
    }
}

TEST(TableOfTexts, IsReadWholeOrRefusedWithItsLine) {
    const std::pair<const char*, const char*> cases[] = {
        {"a\tb\n1\tJam: 8\n2\té\n", "1|Jam: 8/2|é"},
        {"a\tb", ""},
        {"b\ta\n1\t2\n", "Table of texts, line 1: not the expected header"},
        {"a\tb\n1\t2\n1\n", "Table of texts, line 3: wrong number of columns"},
        {"a\tb\n1\t2\t3\n", "Table of texts, line 2: wrong number of columns"},
        {"a\tb\n1\t\n", "Table of texts, line 2: an empty cell"},
    };
    for (const auto& [table, expected] : cases)
        EXPECT_EQ(outcome(table), expected);
}

} // namespace
