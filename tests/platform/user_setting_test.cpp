#include "toolkit/platform/log.h"
#include "toolkit/platform/user_setting.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>

using namespace Qt::StringLiterals;

using namespace platform;

namespace {

const QString adminUserId = u"Admin User ID"_s;

void writeConf(const QString& folder, const QByteArray& content) {
    QDir().mkpath(folder);
    QFile file(folder + u"/user.conf"_s);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

/// Lines that any logging category let through.
int loggedLines = 0;

} // namespace

TEST(ReadUserSetting, GivesTheValueExactlyOrAnEmptyText) {
    const std::pair<QByteArray, const char*> cases[] = {
        {"Admin User ID=3", "3"},
        {"Admin User ID=x:\n", "x:"},
        {"Admin User ID={3B9F17C4-A2D6-4E18-9C07-51EE40B7A26D}\r\n", "{3B9F17C4-A2D6-4E18-9C07-51EE40B7A26D}"},
        {"\xEF\xBB\xBF"
         "Admin User ID= a = \"b\", %41\\n;#\t \r\n",
         "a = \"b\", %41\\n;#"},
        {"\tadmin user ID = x:3 \r\n", "x:3"},
        {"ADMIN USER ID=\"x:3\"", "x:3"},
        {"Admin User ID = ' 3\"'", " 3\""},
        {"Admin User ID=\"", "\""},
        {"Admin User ID = \"\"\n", ""},
        {"Admin User ID=cabang é€😀\n", "cabang é€😀"},
        {"[General]\nOther=1\nAdmin User ID Old=2\n\nAdmin User ID=4\nAdmin User ID=5\n", "4"},
        {"Admin User ID=\n\"Admin  User ID\"=\"x:6\"\n", "x:6"},
        {"Another User ID=7\n", ""},
        {"", ""},
    };
    const QTemporaryDir folder;
    for (const auto& [content, value] : cases) {
        writeConf(folder.path(), content);
        EXPECT_EQ(ReadUserSetting(adminUserId, folder.path()).toStdString(), value) << content.toStdString();
    }
}

TEST(ReadUserSetting, IsRefusedByAFileThatIsThereAndCannotBeRead) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"user.conf"_s);
    EXPECT_TRUE(QFile::link(u"/nowhere/at all"_s, file));
    EXPECT_THROW((void)ReadUserSetting(adminUserId, folder.path()), std::runtime_error) << "a link that leads nowhere";
    EXPECT_TRUE(QFile::remove(file));
    for (const QByteArray& content : {QByteArray("Admin User ID : 3\n"), QByteArray("AdminUserID\n"),
                                      QByteArray(reinterpret_cast<const char*>(u"Admin User ID=3"), 30)}) {
        writeConf(folder.path(), content);
        EXPECT_THROW((void)ReadUserSetting(adminUserId, folder.path()), std::runtime_error) << content.toStdString();
    }
    EXPECT_TRUE(QFile::remove(file) && QDir().mkdir(file));
    EXPECT_THROW((void)ReadUserSetting(adminUserId, folder.path()), std::runtime_error) << "no file";
}

TEST(ReadUserSetting, LooksIntoTheUsersConfigurationFolderAndLogsAFailureWhereAskedTo) {
    const QTemporaryDir home;
    const QtMessageHandler handler = qInstallMessageHandler([](auto, const auto&, const auto&) { ++loggedLines; });
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
    EXPECT_EQ(ReadUserSetting(adminUserId).toStdString(), "");
    EXPECT_EQ(std::exchange(loggedLines, 0), 0);
    QLoggingCategory::setFilterRules(u"orvane.platform=true"_s);
    EXPECT_EQ(ReadUserSetting(adminUserId).toStdString(), "");
    EXPECT_EQ(std::exchange(loggedLines, 0), 1);
    QLoggingCategory::setFilterRules(QString());
    qInstallMessageHandler(handler);
    writeConf(home.filePath(u"orvane"_s), "Admin User ID=x:7\n");
    EXPECT_EQ(ReadUserSetting(adminUserId).toStdString(), "x:7");
}
