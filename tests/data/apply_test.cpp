#include "tests/data/listing.h"
#include "tests/support/test_database.h"
#include "toolkit/data/client_data_set.h"
#include "toolkit/data/fault.h"
#include "toolkit/data/mem_table.h"

#include <algorithm>
#include <random>

namespace {

using namespace Qt::StringLiterals;

TestDatabase& database() {
    static TestDatabase shared;
    return shared;
}

/// A table of five columns with a key of two, and a working copy of it that shows one column more.
class Apply : public testing::Test {
protected:
    Apply() :
        query(connection, u"SELECT t.*, 0 AS pilih FROM t ORDER BY a, b"_s),
        copy({.query = &query, .table = u"t"_s, .keys = {u"a"_s, u"b"_s}, .neverWritten = {u"PILIH"_s}}) {
        database().run(
            u"DROP TABLE IF EXISTS t;\n"
            "CREATE TABLE t (a int NOT NULL, b smallint NOT NULL, v double DEFAULT 7, s varchar(1000), d date, "
            "m datetime, PRIMARY KEY (a, b));\n"
            "INSERT INTO t VALUES (1, 1, 10, 'satu', NULL, NULL), (1, 2, 20, 'dua', NULL, NULL), "
            "(1, 3, 30, 'tiga', NULL, NULL), (2, 1, 40, 'empat', NULL, NULL);\n"_s);
        connection.configure(database().mainSettings());
        copy.events.newRecord = [this] { copy.setValue(u"pilih", 0); };
        copy.open();
    }

    void change(int row, QStringView field, const QVariant& value) {
        copy.goToRow(row);
        copy.editValue(field, value);
        copy.post();
    }
    void removeAt(int row) {
        copy.goToRow(row);
        copy.remove();
    }
    /// Statements that sending takes; two begin and end the transaction.
    qint64 applied() {
        const qint64 before = connection.statementCount();
        copy.applyUpdates();
        return connection.statementCount() - before;
    }
    static QStringList stored(const QString& columns = u"a, b, v, s"_s) {
        return database().rows(u"SELECT "_s + columns + u" FROM t ORDER BY a, b"_s);
    }

    db::Connection connection;
    data::SqlQuery query;
    data::ClientDataSet copy;
};

} // namespace

TEST_F(Apply, SendsDeletesUpdatesAndInsertsByKey) {
    removeAt(0);
    change(0, u"v", 21.5);
    change(1, u"v", 31);
    change(2, u"s", u"EMPAT"_s);
    add(copy, {3, 1, 50, u"lima"_s, QDate(2024, 2, 29), QDateTime(QDate(2024, 2, 29), QTime(8, 30)), -1});
    add(copy, {3, 2});
    EXPECT_EQ(stored().size(), 4) << "nothing reaches the server before";
    EXPECT_EQ(applied(), 2 + 4) << "one delete, one update for each set of fields, one insert";
    EXPECT_EQ(stored(u"*"_s),
              QStringList({u"1\t2\t21.5\tdua\tNULL\tNULL"_s, u"1\t3\t31\ttiga\tNULL\tNULL"_s,
                           u"2\t1\t40\tEMPAT\tNULL\tNULL"_s, u"3\t1\t50\tlima\t2024-02-29\t2024-02-29 08:30:00"_s,
                           u"3\t2\t7\tNULL\tNULL\tNULL"_s}));
    EXPECT_EQ(applied(), 0) << "nothing is pending any more";
}

TEST_F(Apply, SendsNothingForWhatCameBackToItsLoadedState) {
    change(0, u"v", 99);
    change(0, u"v", 10);
    change(1, u"pilih", -1);
    copy.goToRow(2);
    copy.edit();
    copy.post();
    add(copy, {9, 9});
    copy.remove();
    copy.append();
    EXPECT_EQ(applied(), 2);
    EXPECT_EQ(copy.state(), data::State::Browse);
}

TEST_F(Apply, FindsARowByTheKeyItWasLoadedWithAndWritesOnlyWhatDiffers) {
    change(0, u"b", 7);
    change(0, u"s", u"pindah"_s);
    change(1, u"b", 8);
    removeAt(1);
    add(copy, {1, 1, 5, u"baru"_s});
    database().run(u"UPDATE t SET v=12 WHERE a=1 AND b=1"_s);
    copy.applyUpdates();
    EXPECT_EQ(stored(),
              QStringList({u"1\t1\t5\tbaru"_s, u"1\t3\t30\ttiga"_s, u"1\t7\t12\tpindah"_s, u"2\t1\t40\tempat"_s}));
}

TEST_F(Apply, StoresNothingAndKeepsAllPendingWhereOneStatementIsRefused) {
    removeAt(3);
    change(0, u"v", 11);
    change(1, u"b", 3);
    change(2, u"b", 2);
    const QStringList before = stored();
    const QString longText(1000, u'x');
    for (int b = 4; b < 904; ++b)
        add(copy, {1, b == 500 ? 1 : b, 0, longText});
    EXPECT_THROW(copy.applyUpdates(), db::Fault);
    EXPECT_EQ(stored(), before);
    ASSERT_TRUE(copy.locate({{u"a", 1}, {u"b", 1}, {u"s", longText}}));
    copy.editValue(u"b", 500);
    copy.applyUpdates();
    EXPECT_EQ(stored().first(3), QStringList({u"1\t1\t11\tsatu"_s, u"1\t2\t30\ttiga"_s, u"1\t3\t20\tdua"_s}));
    EXPECT_EQ(stored().size(), 903);
}

TEST_F(Apply, RepeatsTheWholeUpToThreeTimesWhileAnotherSessionIsInTheWay) {
    for (const int refusals : {3, 4}) {
        database().run(
            u"DROP TRIGGER IF EXISTS busy;\n"
            "CREATE TRIGGER busy BEFORE INSERT ON t FOR EACH ROW BEGIN SET @tries=IFNULL(@tries, 0)+1; "
            "IF @tries<=%1 THEN SIGNAL SQLSTATE '40001' SET MYSQL_ERRNO=1213; END IF; END;\n"_s.arg(refusals));
        connection.execute(u"SET @tries=0"_s);
        change(0, u"v", refusals);
        add(copy, {2, refusals});
        const QString last = u"2\t%1\t7\tNULL"_s.arg(refusals);
        if (refusals == 3)
            copy.applyUpdates();
        else
            EXPECT_THROW(copy.applyUpdates(), db::Fault);
        EXPECT_EQ(stored().last() == last, refusals == 3);
        EXPECT_EQ(stored().first(), u"1\t1\t3\tsatu"_s);
    }
}

TEST_F(Apply, GivesAnEmptiedServerEveryRecordUnderItsNewKey) {
    database().run(u"DELETE FROM t WHERE a=2"_s);
    removeAt(3);
    copy.setFilter(u"b"_s, 1);
    copy.setEverywhere(u"a", 2);
    copy.sendEverything();
    EXPECT_EQ(stored(u"a, b, s"_s).last(3), QStringList({u"2\t1\tsatu"_s, u"2\t2\tdua"_s, u"2\t3\ttiga"_s}));
    EXPECT_EQ(listing(copy), "[2 1 10 satu NULL NULL 0]") << "the filter stays";
    copy.setFilter(u"a"_s, 9);
    copy.setEverywhere(u"a", 9);
    EXPECT_EQ(copy.rowCount(), 3) << "what the filter hid comes to light";
}

TEST_F(Apply, RefusesANumberThatItsColumnWouldClip) {
    add(copy, {1, 32767});
    add(copy, {1, 32768});
    try {
        copy.applyUpdates();
        FAIL() << "no fault";
    } catch (const db::Fault& fault) {
        EXPECT_EQ(fault.code(), 0u);
        EXPECT_STREQ(fault.what(), "32768 does not fit column 'b' of 't', which has 16 bits");
    }
    EXPECT_EQ(stored().size(), 4);
}

TEST_F(Apply, GivesTheServerWhatTheCopyShowsAfterRandomChanges) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const QString signs = u"'\"\\`%_;:?#-/*\n\r\t\0 aZ0é€"_s;
    const auto text = [&] {
        QString made;
        for (int i = int(random() % 12); i > 0; --i)
            made += signs[qsizetype(random() % size_t(signs.size()))];
        return made + (random() % 2 ? u"😀"_s : QString());
    };
    const auto real = [&] { return std::ldexp(double(random()) - 2e9, int(random() % 200) - 100); };
    for (int round = 0; round < 6; ++round) {
        for (int i = 0; i < 400; ++i)
            add(copy, {round + 10, i, random() % 5 ? QVariant(real()) : QVariant(0), text()});
        for (int i = 0; i < 150; ++i)
            removeAt(int(random() % size_t(copy.recordCount())));
        // Every remaining row of an older group takes the number of another one, and new values.
        copy.setFilter(u"a"_s, round + 9);
        QVariantList numbers;
        for (copy.first(); !copy.isEof(); copy.next())
            numbers << copy.value(u"b");
        std::ranges::shuffle(numbers, random);
        for (int row = 0; row < int(numbers.size()); ++row) {
            change(row, u"b", numbers[row]);
            change(row, u"s", random() % 7 ? QVariant(text()) : QVariant());
            change(row, u"v", random() % 7 ? QVariant(real()) : QVariant());
        }
        copy.clearFilter();
        copy.applyUpdates();
        QStringList shown = rowsOf(copy);
        copy.reopen();
        QStringList stored = rowsOf(copy);
        shown.sort();
        stored.sort();
        ASSERT_TRUE(stored == shown) << "round " << round;
    }
}

TEST_F(Apply, LeavesToTheServerWhatNobodyFilledIn) {
    database().run(u"DROP TABLE IF EXISTS u;\n"
                   "CREATE TABLE u (a int PRIMARY KEY, n int NOT NULL, s varchar(5) NOT NULL, f int DEFAULT -1);\n"_s);
    data::SqlQuery rows(connection, u"SELECT u.*, 'lain' AS s FROM u"_s);
    data::ClientDataSet other({.query = &rows, .table = u"u"_s, .keys = {u"a"_s}});
    other.open();
    add(other, {1});
    other.applyUpdates();
    add(other, {2});
    add(other, {3, 4, u"lima"_s, 6});
    other.applyUpdates();
    EXPECT_EQ(database().rows(u"SELECT * FROM u ORDER BY a"_s),
              QStringList({u"1\t0\t\t-1"_s, u"2\t0\t\t-1"_s, u"3\t4\tlima\t6"_s}))
        << "one row or many, and though the query shows two columns of one name";
}

TEST_F(Apply, QueryFollowsTheRecordOfItsMaster) {
    data::MemTable master(integerFields({u"a"_s}));
    master.open();
    data::SqlQuery detail(connection, u"SELECT s FROM t WHERE a=:a AND b>:low ORDER BY b"_s);
    detail.follow(master, {u"a"_s});
    detail.setParameter(u"low"_s, 1);
    detail.open();
    EXPECT_EQ(listing(detail), "") << "no master record, no rows";
    master.append();
    master.setValue(u"a", 1);
    detail.reopen();
    EXPECT_EQ(listing(detail), "[dua] | tiga");
    EXPECT_THROW(detail.edit(), data::Fault);
    EXPECT_THROW(detail.openSql(u"SELECT :unknown"_s), db::Fault);
    EXPECT_EQ(listing(detail), "[dua] | tiga") << "a refused statement leaves the rows";
}

TEST_F(Apply, QueryGivesEachColumnItsType) {
    data::SqlQuery types(connection,
                         u"SELECT 1 AS i, 1.5 AS r, 'x' AS s, DATE('2024-02-29') AS d, "
                         "TIMESTAMP('2024-02-29 10:11:12') AS m, NULL AS n, CAST('0000-00-00' AS date) AS z"_s);
    types.open();
    EXPECT_EQ(listing(types), "[1 1.5 x 2024-02-29 2024-02-29 10:11:12 NULL NULL]");
    using enum data::FieldType;
    for (size_t place = 0; const data::FieldType type : {Integer, Real, Text, Date, Moment})
        EXPECT_EQ(types.fields()[place++].type, type) << place;
}
