#include "frame/recap.h"
#include "frame/recap_colours.h"
#include "run/reading/figures.h"
#include "tests/frame/fixture.h"

#include <gtest/gtest.h>

#include <random>

using namespace Qt::StringLiterals;

namespace {

const QString atWork = u"where emp_id_auto<>-1 and emp_status=0 "_s;
const QDate first(2026, 10, 1), last(2026, 10, 31);

/// Attendance that no real month holds: several shifts a day, negative and empty amounts, rows that do not count, dates
/// around the period's ends, a public holiday that is entered twice.
class RandomAttendance final {
public:
    explicit RandomAttendance(unsigned seed) : m_random(seed) {}

    void insertInto(TestDatabase& database) {
        for (int i = 0; i < 300; ++i) {
            database.run(u"insert into shift_result values(%1, '%2', %3, %4, %5, %6, %7, %8, %9, "_s.arg(below(7))
                             .arg(day())
                             .arg(below(5) == 0 ? 1 : 0)
                             .arg(amount(), amount(), amount(), amount(), flag(), flag()) +
                         QStringList{amount(), amount(), amount(), amount()}.join(u", "_s) + u')');
            database.run(
                u"insert into date_temp values(%1, '%2', %3, 8, %4)"_s.arg(below(7)).arg(day()).arg(below(11)).arg(
                    flag()));
            database.run(u"insert into ex_absent values(%1, '%2', %3, %4)"_s.arg(below(7))
                             .arg(day())
                             .arg(9 + below(5))
                             .arg(below(900) / 100.0));
        }
        for (int i = 0; i < 6; ++i)
            database.run(u"insert into holiday values('%1')"_s.arg(day()));
        database.run(u"insert into holiday values('2026-10-09'), ('2026-10-09')"_s);
    }

private:
    int below(int limit) { return int(m_random() % unsigned(limit)); }
    QString day() {
        const QString time = below(3) == 0 ? u" 23:59:59"_s : QString();
        return QDate(2026, 9, 28).addDays(below(38)).toString(Qt::ISODate) + time;
    }
    QString flag() { return below(2) ? u"-1"_s : u"0"_s; }
    QString amount() { return below(6) == 0 ? u"null"_s : QString::number((below(900) - 200) / 100.0); }

    std::mt19937 m_random;
};

class Recap : public testing::Test {
protected:
    SmallCompany company;
};

TEST_F(Recap, EqualsTheCalculatorWhereAFigureHasOneSource) {
    const unsigned seed = std::random_device()();
    int compared = 0;
    for (const auto& [type, switches] :
         {std::pair("date", "(99,1)"), {"datetime", "(1,2),(2,2),(3,2),(4,2),(13,2),(14,3),(15,3),(16,3)"}}) {
        company.database.setDateType(QString::fromUtf8(type));
        RandomAttendance(seed).insertInto(company.database);
        company.database.run(u"update shift_result set duration=1 where ifnull(duration,0)<=0;\n"
                             "delete from shift_result where late<0 or early<0 or total_ot<0;\n"
                             "delete from sum_report;\ninsert into sum_report values "_s +
                             QString::fromUtf8(switches));
        const auto rows = frame::recap::open(company.services.session.ADOConn, {atWork, first, last});
        for (rows->first(); !rows->isEof(); rows->next())
            for (const run::Figure& figure : run::figures()) {
                const QString column = figure.id_kode_report == 3    ? u"istirahat_lebih"_s
                                       : figure.id_kode_report == 13 ? u"lembur"_s
                                                                     : QString(figure.column);
                if (figure.parts.size() > 1 || !rows->hasField(column))
                    continue;
                data::SqlQuery calculator(company.services.session.ADOConn, run::statementForEmployee(figure));
                calculator.setParameter(u"emp_id_auto"_s, rows->integer(u"emp_id_auto"));
                calculator.setParameter(u"tanggal_awal"_s, first);
                calculator.setParameter(u"tanggal_akhir"_s, last.addDays(1));
                calculator.open();
                EXPECT_DOUBLE_EQ(rows->real(column), calculator.real(QString(figure.column)))
                    << "seed " << seed << ' ' << switches << ' ' << qPrintable(column);
                ++compared;
            }
    }
    EXPECT_EQ(compared, 2 * 5 * 22);
}

TEST_F(Recap, ConditionNarrowsTheEmployees) {
    company.database.run(u"update emp set pin='B 9' where emp_id_auto=1"_s);
    const auto pinsFor = [this](const char* condition) {
        const auto rows =
            frame::recap::open(company.services.session.ADOConn, {atWork + QString::fromUtf8(condition), first, last});
        EXPECT_TRUE(rows->sql().startsWith(u"select distinct k.*")) << "older servers know no WITH";
        QStringList pins;
        for (; !rows->isEof(); rows->next())
            pins << rows->text(u"pin");
        return pins.join(u',').toStdString();
    };
    EXPECT_EQ(pinsFor(""), "A 2,3,4,6,B 9");
    EXPECT_EQ(pinsFor(R"( and dept_name like 'PT\\\\Produksi%' )"), "A 2,3,4,6");
    EXPECT_EQ(pinsFor(R"( and dept_name like 'PT\\\\Produksi' )"), "A 2");
    EXPECT_EQ(pinsFor(" and cab_name='Cabang D''Or' and func_name='Kepala' "), "4,6");
    EXPECT_EQ(pinsFor(" and emp_id_auto=-1 "), "");
}

TEST_F(Recap, SettingThatCannotBeReadStaysAtItsFirstValue) {
    company.database.runApp(u"insert into global_setting values('cl_terlambat_set', 'ya'),"
                            "('cl_cepat_set', 'True'), ('cl_tampil_grid_set', '-1'),"
                            "('cl_terlambat', '#123456'), ('cl_cepat', 'clRed'), ('cl_libur', '$FF')"_s);
    const frame::recap::ColourSettings read = frame::recap::readColourSettings(company.services.session);
    EXPECT_FALSE(read.cl_terlambat_set);
    EXPECT_TRUE(read.cl_cepat_set && read.cl_tampil_grid_set);
    EXPECT_EQ(read.cl_terlambat, QColor(Qt::black));
    EXPECT_EQ(read.cl_absen, QColor(Qt::black));
    EXPECT_EQ(read.cl_cepat, QColor(Qt::red));
    EXPECT_EQ(read.cl_libur, QColor(Qt::red));
}

} // namespace
