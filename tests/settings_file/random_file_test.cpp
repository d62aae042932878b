#include "frame/settings_file/field_code.h"
#include "frame/settings_file/settings_file.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <vector>

using namespace settings;

namespace {

/// Makes settings files that are wrong in one way or another.
class FileMaker final {
public:
    explicit FileMaker(unsigned seed) : m_engine(seed) {}

    QByteArray make() {
        const std::vector<std::function<QByteArray()>> kinds{
            [this] { return bytes(below(400)); },
            [this] { return words(); },
            [this] { return mutated(wellFormed()); },
            [this] { return mutated(mutated(mutated(wellFormed()))); },
            [this] { return wellFormed().left(below(120)); },
        };
        return kinds[size_t(below(int(kinds.size())))]();
    }

private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_engine); }

    QByteArray bytes(int count) {
        QByteArray result;
        for (int i = 0; i < count; ++i)
            result += char(below(256));
        return result;
    }

    /// Five or six fields, each rightly marked, base64 without marks, or plain letters.
    QByteArray words() {
        QByteArray result;
        for (int field = below(3); field < 7; ++field) {
            const QByteArray value = bytes(below(12));
            const QByteArray choices[] = {EncodeField(QString::fromLatin1(value)).toLatin1(), value.toBase64(),
                                          EncodeField(QString::number(below(70000))).toLatin1(), value.toHex()};
            result += choices[below(4)] + (below(2) == 0 ? " " : "\r\n");
        }
        return result;
    }

    QByteArray wellFormed() {
        QByteArrayList fields;
        for (const char* value : {"root", "127.0.0.1", "a password", "orvane", "3306"})
            fields += EncodeField(QString::fromLatin1(value)).toLatin1();
        return fields.join(' ');
    }

    QByteArray mutated(QByteArray file) {
        const int at = below(int(file.size()));
        switch (below(5)) {
        case 0:
            file[at] = char(below(256));
            break;
        case 1:
            file.remove(at, 1 + below(4));
            break;
        case 2:
            file.insert(at, bytes(1 + below(3)));
            break;
        case 3:
            file.insert(at, " \"=\n"[below(4)]);
            break;
        default:
            file.insert(at, file.mid(below(int(file.size())), below(40)));
        }
        return file;
    }

    std::mt19937 m_engine;
};

/// A value may only come from a field that stands in the file whole, marks and all.
bool standsInFile(const QString& value, const QByteArray& content) {
    return value == foreignValue || content.contains(EncodeField(value).toLatin1());
}

} // namespace

TEST(RandomFiles, TenThousandWrongFilesRaiseOrGiveWholeFieldsOnly) {
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    FileMaker maker(seed);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("user.tvk"));
    int accepted = 0;
    constexpr int rounds = 10000;
    for (int round = 0; round < rounds; ++round) {
        const QByteArray content = maker.make();
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        file.close();
        try {
            for (const QString& value : readSettingsFields(path))
                ASSERT_TRUE(standsInFile(value, content)) << content.toPercentEncoding().toStdString();
            static_cast<void>(readSettingsFile(path));
            ++accepted;
        } catch (const SettingsFileError&) {
        }
    }
    // Both ends must have been reached, or the files prove nothing.
    EXPECT_GT(accepted, rounds / 20);
    EXPECT_LT(accepted, rounds * 19 / 20);
}
