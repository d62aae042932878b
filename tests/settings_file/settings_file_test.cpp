#include "frame/settings_file/settings_file.h"

#include "frame/settings_file/field_code.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <string>

using namespace settings;

namespace {

/// A settings file in a folder of its own.
class SettingsFile : public testing::Test {
protected:
    void write(const QByteArray& content) {
        QFile file(m_path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    /// "user|server|password|database|port", or "raises".
    std::string read() {
        try {
            const DatabaseSettings s = readSettingsFile(m_path);
            const QStringList texts{s.user, s.server, s.password, s.database, QString::number(s.port)};
            return texts.join(u'|').toStdString();
        } catch (const SettingsFileError&) {
            return "raises";
        }
    }

    mode_t mode() const {
        struct stat status {};
        return ::stat(QFile::encodeName(m_path).constData(), &status) == 0 ? status.st_mode & 07777U : 0;
    }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(QStringLiteral("user.tvk"));
};

QByteArray coded(const char* value) {
    return EncodeField(QString::fromUtf8(value)).toLatin1();
}

} // namespace

TEST_F(SettingsFile, EveryValueComesBackAsWritten) {
    const QString marks = DecodeBase64(EncodeField(QString()));
    const DatabaseSettings cases[] = {
        {QStringLiteral("root"), QStringLiteral("localhost"), QStringLiteral("s3cret"), QStringLiteral("orvane"), 3306},
        {QString(), QString(), QString(), QString(), 0},
        {QStringLiteral(" two  blanks "), QStringLiteral("10.0.0.1"), QStringLiteral("a \"quoted\" 'one' \\ =;#"),
         QStringLiteral("tab\there\nline\r\n"), 65535},
        {QStringLiteral("aaa"), marks, marks + marks, QStringLiteral("=="), 1},
        {QStringLiteral("gaji é€ 給与 😀"), QStringLiteral("\uFEFFbom"), QString(5000, u'x'), QString(QChar(0)), 3307},
    };
    for (const DatabaseSettings& written : cases) {
        writeSettingsFile(m_path, written);
        EXPECT_EQ(readSettingsFile(m_path), written) << written.user.toStdString();
    }
}

TEST_F(SettingsFile, FieldsMayBePartedAndQuotedInManyWays) {
    const QByteArray u = coded("u"), s = coded("s"), p = coded("p w"), d = coded("d"), n = coded("3306");
    const QByteArray cases[] = {
        u + ' ' + s + ' ' + p + ' ' + d + ' ' + n,
        "  " + u + "\r\n" + s + "\r\n" + p + "\r\n" + d + "\r\n" + n + "\r\n",
        "\xEF\xBB\xBF" + u + ' ' + s + '\t' + p + "\n\n" + d + "  " + n,
        '"' + u + "\" \"" + s + "\"" + p + " \"" + d + "\"\n\"" + n + '"',
        '"' + u + "\" " + s + ' ' + p + ' ' + d + " \"" + n,
        u + ' ' + s + ' ' + p + ' ' + d + ' ' + n + " what stands behind the fifth \" does not count",
    };
    for (const QByteArray& content : cases) {
        write(content);
        EXPECT_EQ(read(), "u|s|p w|d|3306") << content.toStdString();
    }
}

TEST_F(SettingsFile, BrokenFilesRaiseAndForeignFieldsReadAaa) {
    const QByteArray u = coded("u") + ' ', s = coded("s") + ' ', p = coded("p") + ' ', d = coded("d") + ' ';
    const QByteArray n = coded("3306"), foreign = "cm9vdA== ";
    const std::pair<QByteArray, const char*> cases[] = {
        {"", "raises"},
        {" \r\n ", "raises"},
        {u + s + p + d, "raises"},
        {"\"" + u.trimmed() + "\"\"" + s.trimmed() + "\" " + p + d + n, "raises"},
        {foreign + s + p + d + n, "aaa|s|p|d|3306"},
        {u + foreign + p + d + n, "u|aaa|p|d|3306"},
        {u + s + foreign + d + n, "u|s|aaa|d|3306"},
        {u + s + p + foreign + n, "u|s|p|aaa|3306"},
        {u + s + p + d + foreign, "raises"},
        {u + s + p + d + "3306", "raises"},
        {u + s + p + d + coded(""), "raises"},
        {u + s + p + d + coded("33o6"), "raises"},
        {u + s + p + d + coded("-1"), "raises"},
        {u + s + p + d + coded("65536"), "raises"},
        {u + s + p + d + coded("99999999999999999999"), "raises"},
        {QByteArray(3 << 20, 'A'), "raises"},
    };
    for (const auto& [content, result] : cases) {
        write(content);
        EXPECT_EQ(read(), result) << content.left(200).toStdString();
    }
}

TEST_F(SettingsFile, FourFieldsAreTooFewToShow) {
    write(coded("u") + ' ' + coded("s") + ' ' + coded("p") + ' ' + coded("d"));
    EXPECT_THROW(static_cast<void>(readSettingsFields(m_path)), SettingsFileError);
}

TEST_F(SettingsFile, AMissingFileOrAFolderInItsPlaceRaisesAndNamesThePath) {
    EXPECT_EQ(read(), "raises");
    m_path = m_folder.path();
    EXPECT_EQ(read(), "raises");
    try {
        writeSettingsFile(m_path, {});
        FAIL() << "replaced a folder";
    } catch (const SettingsFileError& fault) {
        EXPECT_TRUE(QString::fromUtf8(fault.what()).startsWith(m_path)) << fault.what();
    }
}

TEST_F(SettingsFile, IsItsOwnersAloneWhateverStoodThereBefore) {
    const mode_t previous = ::umask(0);
    write("an older file, open to all");
    ::chmod(QFile::encodeName(m_path).constData(), 0666);
    writeSettingsFile(m_path, {});
    ::umask(previous);
    EXPECT_EQ(mode(), 0600U);
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("user.tvk")});
}
