#include "frame/settings_file/field_code.h"

#include <QFile>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

using namespace settings;

namespace {

std::string decoded(const QString& field) {
    return DecodeField(field).toStdString();
}

QString base64(const QByteArray& bytes) {
    return QString::fromLatin1(bytes.toBase64());
}

QByteArray marks() {
    return DecodeBase64(EncodeField(QString())).toLatin1();
}

} // namespace

TEST(SplitFields, BlanksAndTheDelimiterPartFieldsAndQuotesHoldThemTogether) {
    struct Case {
        char16_t delimiter;
        const char* text;
        std::vector<std::string> fields;
    };
    const Case cases[] = {
        {u' ', "", {}},
        {u' ', " \r\n\t ", {}},
        {u' ', "a b\nc\r\nd\te", {"a", "b", "c", "d", "e"}},
        {u' ', "  a   b  ", {"a", "b"}},
        {u' ', "\"a b\" c", {"a b", "c"}},
        {u' ', "\"a\nb\"\"c\"\"\" d", {"a\nb\"c\"", "d"}},
        {u' ', "\"\" x", {"", "x"}},
        {u' ', "\"a\"b c\"d", {"a", "b", "c\"d"}},
        {u' ', "a \"never closed b", {"a", "never closed b"}},
        {u' ', "a \"", {"a", ""}},
        {u';', "a;b c;;\"d;e\" ; f;", {"a", "b", "c", "", "d;e", "f", ""}},
        {u';', ";", {"", ""}},
    };
    for (const Case& c : cases) {
        QStringList list{QStringLiteral("left over")};
        SplitFields(c.delimiter, QString::fromUtf8(c.text), &list);
        std::vector<std::string> fields;
        for (const QString& field : list)
            fields.push_back(field.toStdString());
        EXPECT_EQ(fields, c.fields) << c.text;
    }
}

TEST(SplitFields, RefusesAMissingList) {
    try {
        SplitFields(u' ', QStringLiteral("a"), nullptr);
        FAIL() << "accepted";
    } catch (const std::logic_error& fault) {
        EXPECT_STREQ(fault.what(), "Assertion failure (fr_menu)");
    }
}

TEST(DecodeBase64, TakesTheOneSpellingOfAValueOnly) {
    const std::pair<const char16_t*, const char*> cases[] = {
        {u"", ""},         {u"YQ==", "a"},     {u"YWI=", "ab"}, {u"YWJj", "abc"}, {u"w6nigqw=", "é€"},
        {u"YQ", ""},       {u"YQ=", ""},       {u"YR==", ""},   {u"YQ==\n", ""},  {u"Y Q==", ""},
        {u"Y!Q==", ""},    {u"====", ""},      {u"Y", ""},      {u"-_-_", ""},    {u"/w==", ""},
        {u"YQ==YQ==", ""}, {u"\u0159Q==", ""}, {u"wqk=", "©"},  {u"wg==", ""},
    };
    for (const auto& [text, value] : cases)
        EXPECT_EQ(DecodeBase64(QString::fromUtf16(text)).toStdString(), value)
            << QString::fromUtf16(text).toStdString();
}

// Files written today must be readable by tomorrow's program, so the marks themselves are fixed here.
TEST(DecodeField, ReadsWhatEarlierVersionsWrote) {
    EXPECT_EQ(decoded(QStringLiteral("cHcgd2l0aCBibGFua2Y3K014RD1aMm8=")), "pw with blank");
    EXPECT_EQ(decoded(QStringLiteral("ZjcrTXhEPVoybw==")), "");
}

TEST(DecodeField, AnythingNotMarkedReadsAaa) {
    const QByteArray good = marks();
    const QByteArray swapped = good.right(5) + good.left(5);
    QByteArray flipped = good;
    flipped[3] = '~';
    const QString cases[] = {
        QString(),
        QStringLiteral("root"),
        base64("root"),
        base64("v" + good.left(9)),
        base64("v" + good.right(9)),
        base64("v" + swapped),
        base64("v" + flipped),
        base64("v" + good.toLower()),
        base64("v" + good + " "),
        base64("\xFF" + good),
        base64(good + "v"),
        base64("v" + good) + u'=',
        base64("v" + good).chopped(1),
        QString::fromLatin1(("v" + good).toBase64(QByteArray::OmitTrailingEquals)) + u'\n',
    };
    for (const QString& field : cases)
        EXPECT_EQ(decoded(field), "aaa") << field.toStdString();
    EXPECT_EQ(decoded(base64("v" + good)), "v");
}

TEST(DecodeField, NoMarkStandsInTheProgramsFile) {
    QFile program(QStringLiteral("/proc/self/exe"));
    ASSERT_TRUE(program.open(QIODevice::ReadOnly));
    const QByteArray content = program.readAll();
    for (const QByteArray& mark : {marks().left(5), marks().right(5)}) {
        const QString text = QString::fromLatin1(mark);
        const QByteArray wide(reinterpret_cast<const char*>(text.utf16()), text.size() * qsizetype(sizeof(char16_t)));
        EXPECT_FALSE(content.contains(mark));
        EXPECT_FALSE(content.contains(wide));
    }
    EXPECT_TRUE(content.contains("NoMarkStandsInTheProgramsFile"));
}
