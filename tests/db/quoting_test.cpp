#include "tests/support/test_database.h"
#include "toolkit/text/sql_text.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

namespace {

/// Texts made mostly of what ends or escapes a literal.
QString hostileText(QRandomGenerator& random) {
    static const QString parts[] = {u"\\"_qs, u"'"_qs, u"\""_qs, u"\\'"_qs, u"%"_qs, u"a"_qs, u" "_qs, u"--"_qs,
                                    u"/*"_qs, u";"_qs, u"\n"_qs, u"\0"_qs,  u"é"_qs, u"😀"_qs, u"_"_qs, u"\u001a"_qs};
    QString text;
    for (int i = random.bounded(12); i > 0; --i)
        text += parts[random.bounded(int(std::size(parts)))];
    return text;
}

class Quoting : public testing::Test {
protected:
    void SetUp() override { m_connection.configure(testServer()); }

    /// What the server makes of a literal, with a second column that shows whether the literal kept to itself.
    QString readBack(const QString& literal) {
        db::Result result = m_connection.query(u"select "_qs + literal + u" as value, 'fence' as fence"_qs);
        EXPECT_EQ(result.rowCount(), 1);
        EXPECT_EQ(result.columns().size(), 2u);
        result.next();
        EXPECT_EQ(result.text(u"fence"_qs), u"fence"_qs);
        return result.text(u"value"_qs);
    }

    db::Connection m_connection;
    const quint32 m_seed = QRandomGenerator::global()->generate();
    QRandomGenerator m_random{m_seed};
};

} // namespace

TEST_F(Quoting, EscapedTextsComeBackFromTheServerAsTheyWere) {
    SCOPED_TRACE(testing::Message() << "seed " << m_seed);
    for (int i = 0; i < 500; ++i) {
        const QString text = hostileText(m_random);
        ASSERT_EQ(readBack(EscapeSqlText(text)), text);
    }
}

TEST_F(Quoting, PlainLiteralsNeverEndBeforeTheirValue) {
    SCOPED_TRACE(testing::Message() << "seed " << m_seed);
    for (int i = 0; i < 500; ++i) {
        const QString text = hostileText(m_random);
        const QString back = readBack(quotedSqlText(text));
        if (!text.contains(u'\\')) {
            ASSERT_EQ(back, text);
        }
    }
}

TEST(PlainQuoting, AddsABackslashOnlyToAnOddRunBeforeAQuoteOrTheEnd) {
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
