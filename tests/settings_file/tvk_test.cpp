#include "frame/settings_file/settings_file.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>

namespace {

struct Outcome {
    int exitCode = -1;
    std::string output;
    std::string errors;
};

Outcome tvk(const QTemporaryDir& folder, const QStringList& arguments, const QByteArray& input = {}) {
    QProcess process;
    process.setWorkingDirectory(folder.path());
    process.start(QStringLiteral(TVK_PROGRAM), arguments);
    process.write(input);
    process.closeWriteChannel();
    process.waitForFinished();
    return {process.exitCode(), process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
}

QStringList words(const char* text) {
    return QString::fromUtf8(text).split(u' ');
}

} // namespace

TEST(Tvk, WritesWhatTheProgramReadsAndShowsAllButThePassword) {
    const QTemporaryDir folder;
    const QStringList arguments = words("--user gaji --server db.local --password - --database orvane --port 3307");
    const Outcome written =
        tvk(folder, QStringList(QStringLiteral("user.tvk")) + arguments, "kata sandi-é\nsecond line");
    EXPECT_EQ(written.exitCode, 0) << written.errors;
    EXPECT_EQ(written.output + written.errors, "");
    const settings::DatabaseSettings expected{.user = QStringLiteral("gaji"),
                                              .server = QStringLiteral("db.local"),
                                              .password = QStringLiteral("kata sandi-é"),
                                              .database = QStringLiteral("orvane"),
                                              .port = 3307};
    EXPECT_EQ(settings::readSettingsFile(folder.filePath(QStringLiteral("user.tvk"))), expected);
    const Outcome shown = tvk(folder, {QStringLiteral("user.tvk"), QStringLiteral("--show")});
    EXPECT_EQ(shown.exitCode, 0);
    EXPECT_EQ(shown.output,
              "user:     gaji\nserver:   db.local\npassword: (hidden)\ndatabase: orvane\nport:     3307\n");
}

TEST(Tvk, WrongUseSaysWhatIsWrongAndWritesNothing) {
    const std::pair<const char*, const char*> cases[] = {
        {"", "exactly one FILE is needed"},
        {"x.tvk --user u --server s --password p --database d", "--port is missing"},
        {"x.tvk --user u --server s --password p --database d --port 0", "--port takes a number from 1 to 65535"},
        {"x.tvk --user u --server s --password p --database d --port 65536", "--port takes a number from 1 to 65535"},
        {"x.tvk --user u --server s --password - --database d --port 1", "no password on standard input"},
        {"x.tvk y.tvk --show", "exactly one FILE is needed"},
        {"x.tvk --shwo", "Unknown option 'shwo'."},
        {"x.tvk --show", "x.tvk: No such file or directory"},
        {"no/such/folder/x.tvk --user u --server s --password p --database d --port 1",
         "no/such/folder/x.tvk: No such file or directory"},
    };
    const QTemporaryDir folder;
    for (const auto& [arguments, message] : cases) {
        const Outcome run = tvk(folder, QString::fromUtf8(arguments).split(u' ', Qt::SkipEmptyParts));
        EXPECT_EQ(run.exitCode, 2) << arguments;
        EXPECT_EQ(run.errors.substr(0, run.errors.find('\n')), std::string("tvk: ") + message) << arguments;
        EXPECT_EQ(run.output, "") << arguments;
        EXPECT_TRUE(folder.isValid() && QDir(folder.path()).isEmpty()) << arguments;
    }
}
