#include "tests/support/test_database.h"
#include "toolkit/text/sql_text.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Texts made mostly of what ends or escapes a literal.
QString hostileText(QRandomGenerator& random) {
    static const QString parts[] = {u"\\"_s, u"'"_s, u"\""_s, u"\\'"_s, u"%"_s, u"a"_s, u" "_s, u"--"_s,
                                    u"/*"_s, u";"_s, u"\n"_s, u"\0"_s,  u"é"_s, u"😀"_s, u"_"_s, u"\u001a"_s};
    QString text;
    for (int i = random.bounded(12); i > 0; --i)
        text += parts[random.bounded(int(std::size(parts)))];
    return text;
}

/// What the server makes of a literal, with a second column that shows whether the literal kept to itself.
QString readBack(db::Connection& connection, const QString& literal) {
    db::Result result = connection.query(u"select "_s + literal + u" as value, 'fence' as fence"_s);
    EXPECT_TRUE(result.rowCount() == 1 && result.columns().size() == 2 && result.next());
    EXPECT_EQ(result.text(u"fence"_s), u"fence"_s);
    return result.text(u"value"_s);
}

} // namespace

TEST(Quoting, EscapedTextsComeBackFromTheServerAsTheyWereAndPlainOnesNeverEndBeforeTheirValue) {
    db::Connection connection;
    connection.configure(testServer());
    const quint32 seed = QRandomGenerator::global()->generate();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    QRandomGenerator random(seed);
    for (int i = 0; i < 500; ++i) {
        const QString text = hostileText(random);
        ASSERT_EQ(readBack(connection, EscapeSqlText(text)), text);
        const QString plain = readBack(connection, quotedSqlText(text));
        ASSERT_TRUE(text.contains(u'\\') || plain == text) << text.toStdString();
    }
}

TEST(Quoting, PlainlyAddsABackslashOnlyToAnOddRunBeforeAQuoteOrTheEnd) {
    const std::pair<const char*, const char*> cases[] = {
        {"", "''"},
        {"O'Brien", "'O''Brien'"},
        {"a\\b", "'a\\b'"},
        {"PT\\\\\\\\Gudang", "'PT\\\\\\\\Gudang'"},
        {"a\\", "'a\\\\'"},
        {"a\\\\", "'a\\\\'"},
        {"a\\'b", "'a\\\\''b'"},
        {"a\\\\'b", "'a\\\\''b'"},
        {"a\\b'", "'a\\b'''"},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(quotedSqlText(QString::fromUtf8(text)).toStdString(), expected);
}
