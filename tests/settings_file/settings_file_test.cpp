#include "base/settings_file/settings_file.h"

#include "base/settings_file/field_code.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace settings;
using namespace Qt::StringLiterals;

namespace {

QByteArray coded(const QString& value) {
    return EncodeField(value).toLatin1();
}

/// A settings file in a folder of its own.
class SettingsFile : public testing::Test {
protected:
    void write(const QByteArray& content) {
        QFile file(m_path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    /// "user|server|password|database|port", or "raises".
    std::string read() {
        try {
            const DatabaseSettings s = readSettingsFile(m_path);
            return QStringList{s.user, s.server, s.password, s.database, QString::number(s.port)}
                .join(u'|')
                .toStdString();
        } catch (const SettingsFileError&) {
            return "raises";
        }
    }

    /// Exit code and output of the command line tool.
    std::pair<int, std::string> tvk(const QString& arguments, const QByteArray& input = {}) {
        QProcess process;
        process.setWorkingDirectory(m_folder.path());
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QStringLiteral(TVK_PROGRAM), arguments.split(u' ', Qt::SkipEmptyParts));
        process.write(input);
        process.closeWriteChannel();
        process.waitForFinished();
        return {process.exitCode(), process.readAll().toStdString()};
    }

    const QByteArray user = coded(u"u"_s), server = coded(u"s"_s), password = coded(u"p w"_s);
    const QByteArray database = coded(u"d"_s), port = coded(u"3306"_s);
    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(u"user.tvk"_s);
};

} // namespace

TEST_F(SettingsFile, EveryValueComesBackAsWritten) {
    const QString marks = DecodeBase64(EncodeField(QString()));
    const DatabaseSettings cases[] = {
        {u"root"_s, u"localhost"_s, u"s3cret"_s, u"orvane"_s, 3306},
        {QString(), QString(), QString(), QString(), 0},
        {u" two  blanks "_s, u"10.0.0.1"_s, u"a \"quoted\" 'one' \\ =;#"_s, u"tab\there\nline\r\n"_s, 65535},
        {u"aaa"_s, marks, marks + marks, u"=="_s, 1},
        {u"gaji é€ 給与 😀"_s, u"\uFEFFbom"_s, QString(5000, u'x'), QString(QChar(0)), 3307},
    };
    for (const DatabaseSettings& written : cases) {
        writeSettingsFile(m_path, written);
        EXPECT_EQ(readSettingsFile(m_path), written) << written.user.toStdString();
    }
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"user.tvk"_s});
}

TEST_F(SettingsFile, IsForEverybodyOrAGroupWhenNewAndStaysAsItWasOnceThere) {
    const auto access = [this] {
        struct stat status {};
        EXPECT_EQ(::stat(QFile::encodeName(m_path).constData(), &status), 0);
        return QString::asprintf("%o %u:%u", status.st_mode & 07777U, status.st_uid, status.st_gid).toStdString();
    };
    const std::string own = std::to_string(::geteuid()) + ':' + std::to_string(::getegid());
    const mode_t former = ::umask(077);
    writeSettingsFile(m_path, {});
    ::umask(former);
    EXPECT_EQ(access(), "644 " + own);
    EXPECT_THROW(writeSettingsFile(m_path, {}, u"no such group"_s), SettingsFileError);
    writeSettingsFile(m_path, {}, QString::fromLocal8Bit(::getgrgid(::getegid())->gr_name));
    EXPECT_EQ(access(), "640 " + own);

    const QString link = m_folder.filePath(u"link"_s);
    ASSERT_TRUE(QFile::link(u"user.tvk"_s, link));
    const bool isRoot = ::geteuid() == 0;
    ASSERT_TRUE(!isRoot || ::chown(QFile::encodeName(m_path).constData(), 65534, 65533) == 0);
    ASSERT_EQ(::chmod(QFile::encodeName(m_path).constData(), 0604), 0);
    writeSettingsFile(link, {});
    EXPECT_EQ(access(), "604 " + (isRoot ? "65534:65533" : own));
    EXPECT_EQ(QFile::symLinkTarget(link), m_path);
}

TEST_F(SettingsFile, IsReadInManyFormsAndRaisesWhereItIsBroken) {
    const QByteArray head = user + ' ' + server + ' ' + password + ' ' + database + ' ', foreign = "cm9vdA==";
    const std::pair<QByteArray, const char*> cases[] = {
        {"  " + head.simplified().replace(' ', "\r\n") + "\r\n" + port + "\r\n", "u|s|p w|d|3306"},
        {"\xEF\xBB\xBF" + head + '\t' + port, "u|s|p w|d|3306"},
        {'"' + user + "\" \"" + server + "\"" + password + " \"" + database + "\"\n\"" + port + '"', "u|s|p w|d|3306"},
        {head + " \"" + port, "u|s|p w|d|3306"},
        {head + port + " what stands behind the fifth \" does not count", "u|s|p w|d|3306"},
        {foreign + ' ' + head.sliced(user.size() + 1) + port, "aaa|s|p w|d|3306"},
        {user + ' ' + server + ' ' + foreign + ' ' + foreign + ' ' + port, "u|s|aaa|aaa|3306"},
        {"", "raises"},
        {head, "raises"},
        {head + foreign, "raises"},
        {head + "3306", "raises"},
        {head + coded({}), "raises"},
        {head + coded(u"33o6"_s), "raises"},
        {head + coded(u"65536"_s), "raises"},
    };
    EXPECT_EQ(read(), "raises") << "no file";
    for (const auto& [content, result] : cases) {
        write(content);
        EXPECT_EQ(read(), result) << content.toStdString();
    }
    m_path = m_folder.path();
    EXPECT_EQ(read(), "raises") << "a folder";
    EXPECT_THROW(writeSettingsFile(m_path, {}), SettingsFileError);
}

TEST_F(SettingsFile, TheToolWritesWhatTheProgramReadsAndShowsAllButThePassword) {
    EXPECT_EQ(tvk(u"user.tvk --user gaji --server db.local --password - --database orvane --port 3307"_s,
                  "kata sandi-é\r\nsecond line"),
              std::pair(0, std::string()));
    EXPECT_EQ(read(), "gaji|db.local|kata sandi-é|orvane|3307");
    EXPECT_EQ(tvk(u"user.tvk --show"_s), std::pair(0, std::string("user:     gaji\nserver:   db.local\n"
                                                                  "password: (hidden)\ndatabase: orvane\n"
                                                                  "port:     3307\n")));
}

TEST_F(SettingsFile, WrongUseOfTheToolSaysWhatIsWrongAndWritesNothing) {
    const std::pair<const char*, const char*> cases[] = {
        {"", "exactly one FILE is needed"},
        {"x.tvk y.tvk --show", "exactly one FILE is needed"},
        {"x.tvk --user u --server s --password p --database d", "--port is missing"},
        {"x.tvk --user u --server s --password p --database d --port 0", "--port takes a number from 1 to 65535"},
        {"x.tvk --user u --server s --password - --database d --port 1", "no password on standard input"},
        {"x.tvk --user u --server= --password p --database d --port 1", "--server must not be empty"},
        {"x.tvk --user= --server s --password p --database d --port 1", "--user must not be empty"},
        {"x.tvk --user u --server s --password p --database= --port 1", "--database must not be empty"},
        {"x.tvk --user u --server s --password p --database d --port 1 --group no-such",
         "x.tvk: there is no group no-such"},
        {"x.tvk --show --port 1", "--show takes no other option"},
        {"x.tvk --show", "x.tvk: No such file or directory"},
    };
    for (const auto& [arguments, message] : cases) {
        const auto [exitCode, output] = tvk(QString::fromUtf8(arguments));
        EXPECT_EQ(exitCode, 2) << arguments;
        EXPECT_EQ(output.substr(0, output.find('\n')), std::string("tvk: ") + message) << arguments;
        EXPECT_TRUE(QDir(m_folder.path()).isEmpty()) << arguments;
    }
}
