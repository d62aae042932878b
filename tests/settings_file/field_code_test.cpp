#include "base/settings_file/field_code.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using namespace settings;

namespace {

QString base64(const QByteArray& bytes) {
    return QString::fromLatin1(bytes.toBase64());
}

QByteArray marks() {
    return DecodeBase64(EncodeField(QString())).toLatin1();
}

} // namespace

TEST(DecodeBase64, TakesTheOneSpellingOfAValueOnly) {
    EXPECT_EQ(DecodeBase64(u"YWLDqeKCrA=="_s), u"abé€"_s);
    for (const char16_t* wrong :
         {u"YQ", u"YR==", u"YQ==\n", u"Y Q==", u"Y!Q==", u"====", u"-_-_", u"/w==", u"wg==", u"YQ==YQ==", u"\u0159Q=="})
        EXPECT_EQ(DecodeBase64(QString::fromUtf16(wrong)), QString()) << QString::fromUtf16(wrong).toStdString();
}

TEST(DecodeField, ReadsWhatEarlierVersionsWroteAndAnythingNotMarkedAsAaa) {
    const QByteArray good = marks();
    const std::pair<QString, const char*> cases[] = {
        // Files written today must be readable by tomorrow's program, so the marks themselves are fixed here.
        {u"cHcgd2l0aCBibGFua2Y3K014RD1aMm8="_s, "pw with blank"},
        {u"ZjcrTXhEPVoybw=="_s, ""},
        {base64("v" + good), "v"},
        {u"root"_s, "aaa"},
        {base64("root"), "aaa"},
        {base64("v" + good.right(9)), "aaa"},
        {base64("v" + good.right(5) + good.left(5)), "aaa"},
        {base64("v" + good.toLower()), "aaa"},
        {base64("\xFF" + good), "aaa"},
        {base64(good + "v"), "aaa"},
        {base64("v" + good).chopped(1), "aaa"},
    };
    for (const auto& [field, value] : cases)
        EXPECT_EQ(DecodeField(field).toStdString(), value) << field.toStdString();
}

TEST(DecodeField, NoMarkStandsInTheProgramsFile) {
    QFile program(u"/proc/self/exe"_s);
    ASSERT_TRUE(program.open(QIODevice::ReadOnly));
    const QByteArray content = program.readAll();
    for (const QByteArray& mark : {marks().left(5), marks().right(5)}) {
        const QString text = QString::fromLatin1(mark);
        const QByteArray wide(reinterpret_cast<const char*>(text.utf16()), text.size() * qsizetype(sizeof(char16_t)));
        EXPECT_FALSE(content.contains(mark) || content.contains(wide));
    }
    EXPECT_TRUE(content.contains("NoMarkStandsInTheProgramsFile"));
}
