#include "run/figure_reader.h"
#include "run/figure_statements.h"
#include "run/reference/plain_lookups.h"
#include "run/statements.h"
#include "tests/support/test_database.h"

#include <QLocale>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using run::FigureRead;
using run::Window;

const Window tenDays{QDate(2024, 1, 1), QDate(2024, 1, 10)};

/// Employee 5 has no attendance, 7 has shifts and day statuses, 9 has day statuses alone, 8 only disturbs.
constexpr auto attendance = R"(
insert into emp (emp_id_auto, pin) values (5, '5'), (7, '7'), (8, '8'), (9, '9');
insert into holiday values ('2024-01-06'), ('2024-01-06'), ('2024-01-20');
insert into shift_result
  (emp_id_auto, shift_date, valid, late, early, total_ot, duration, holiday, shift_ot, break1, max_break, break2, max_break2)
values
  (7, '2023-12-31', 0, 90, 90, 90, 90, 0, 0, 90, 0, 90, 0),
  (7, '2024-01-01', 0, 0.5, 0, 1.5, 8, 0, 0, 1, 1, 0.5, 0.5),
  (7, '2024-01-01', 0, 0.25, 1, 2, 4, 0, -1, 0.625, 0.5, 0, 0.375),
  (7, '2024-01-02', 1, 9, 9, 9, 9, 0, 0, 9, 0, 9, 0),
  (7, '2024-01-03', 0, 0, 0.75, 3, 0, 0, 0, null, 0, null, 0),
  (7, '2024-01-06', 0, 0, 0, 5, 6, -1, 0, 0, 0, 0, 0),
  (7, '2024-01-07', 0, 0, 0, 2.5, 5, -1, -1, 0, 0, 0, 0),
  (7, '2024-01-10', 0, 1, 0, 0, 7, 0, 0, 0, 0, 0, 0),
  (7, '2024-01-11', 0, 90, 90, 90, 90, 0, 0, 90, 0, 90, 0),
  (8, '2024-01-01', 0, 90, 90, 90, 90, -1, 0, 90, 0, 90, 0);
insert into date_temp (emp_id_auto, date_temp, absent_id, duration, holiday) values
  (7, '2024-01-04', 1, 8, 0), (7, '2024-01-05', 2, 0, 0), (7, '2024-01-05', 2, 0, 0), (7, '2024-01-05', 3, 0, 0),
  (7, '2024-01-08', 4, 0, 0), (7, '2024-01-09', 4, 0, 0), (7, '2024-01-08', 5, 0, 0), (7, '2024-01-08', 6, 0, -1),
  (7, '2024-01-08', 7, 0, 0), (7, '2024-01-08', 8, 0, 0), (7, '2024-01-08', 9, 0, 0), (7, '2024-01-10', 9, 0, 0),
  (7, '2024-01-11', 2, 0, 0), (8, '2024-01-04', 1, 8, 0),
  (9, '2024-01-04', 1, null, 0), (9, '2024-01-06', 1, 8, -1), (9, '2024-01-07', 1, 8, -1);
insert into ex_absent (emp_id_auto, tgl_awal, absent_id, sum_result) values
  (7, '2024-01-02', 10, 1.5), (7, '2024-01-02', 10, 2), (7, '2024-01-03', 11, 4), (7, '2024-01-03', 12, 0.125),
  (7, '2024-01-11', 10, 90), (8, '2024-01-02', 10, 90);
insert into free_ot_result_m (emp_id_auto, free_date, duration, duration_ot) values
  (7, '2024-01-02', 3, 1), (7, '2024-01-02', 2, 0.5), (7, '2024-01-05', 1, 0), (7, '2024-01-11', 90, 90),
  (8, '2024-01-02', 90, 90);
)";

TestDatabase& database() {
    static TestDatabase shared;
    return shared;
}

class Figures : public testing::Test {
protected:
    void SetUp() override {
        for (const char* table :
             {"emp", "holiday", "shift_result", "date_temp", "ex_absent", "free_ot_result_m", "free_ot", "sum_report"})
            run(u"delete from %1"_s.arg(QLatin1String(table)));
        database().runApp(u"delete from global_setting"_s);
        run(QString::fromUtf8(attendance));
        m_main.configure(database().mainSettings());
        m_app.configure(database().appSettings());
    }

    static void run(const QString& sql) { database().run(sql); }

    [[nodiscard]] run::PlainLookups plain() { return {m_main, m_app, run::Selections()}; }

    /// Every figure of employees 5, 7 and 9, over the period and for each of its days.
    [[nodiscard]] run::MemoryLookups bulk(const Window& period) {
        std::set<FigureRead> wanted;
        for (const auto grain : {FigureRead::Grain::Period, FigureRead::Grain::Day}) {
            for (const run::Figure& figure : run::figures())
                wanted.insert({figure.id_kode_report, grain, FigureRead::Form::AsSet});
            wanted.insert({run::figureHadir, grain, FigureRead::Form::Kehadiran});
        }
        run::LookupTables tables;
        tables.places = {{5, 0}, {7, 1}, {9, 2}};
        tables.hadir100 = run::readHadir100(m_app);
        tables.figures = run::FigureReader(m_main, period, tables.places, [] {}).read(wanted);
        return {period, std::move(tables)};
    }

    /// "1=1.75 2=1.75 ..." without the figures that are 0.
    [[nodiscard]] static std::string listed(run::Lookups& lookups, int emp_id_auto, const Window& window) {
        QStringList texts;
        for (int id = 0; id <= 51; ++id)
            if (const double value = lookups.faktor_laporan(id, emp_id_auto, window); value != 0)
                texts << u"%1=%2"_s.arg(id).arg(QString::number(value, 'f', QLocale::FloatingPointShortest));
        return texts.join(u' ').toStdString();
    }

    void expectBoth(int emp_id_auto, const std::string& expected) {
        run::PlainLookups one = plain();
        EXPECT_EQ(listed(one, emp_id_auto, tenDays), expected) << "one statement each, employee " << emp_id_auto;
        run::MemoryLookups all = bulk(tenDays);
        EXPECT_EQ(listed(all, emp_id_auto, tenDays), expected) << "in bulk, employee " << emp_id_auto;
    }

    /// The figure as both ways give it.
    double both(int id, int emp_id_auto, const Window& window) {
        const double value = plain().faktor_laporan(id, emp_id_auto, window);
        EXPECT_EQ(bulk(window).faktor_laporan(id, emp_id_auto, window), value);
        return value;
    }

    db::Connection m_main;
    db::Connection m_app;
};

/// What every setting leaves alone: day statuses of employee 7.
const std::string statuses = " 5=2 6=1 7=2 8=1 9=1 10=1 11=1 12=2";
const std::string sumsOfEmployee7 = "1=1.75 2=1.75 3=-0.26 4=30" + statuses +
                                    " 13=14 14=3.5 15=4 16=0.12 18=11 19=19 20=12 21=5 22=1 23=3.5 24=7.5 25=10 26=2.5 "
                                    "27=6.5 28=4.5 50=6";

} // namespace

TEST_F(Figures, AreAmountsWhereTheSettingsAreMissingOrAskForSums) {
    expectBoth(7, sumsOfEmployee7);
    run(u"insert into sum_report values (1,1),(2,3),(3,0),(4,3),(13,null),(14,2),(15,2),(16,1)"_s);
    expectBoth(7, sumsOfEmployee7);
    expectBoth(9, "4=3 18=2 19=1 20=2 21=1 22=3");
    expectBoth(5, "");
}

TEST_F(Figures, FollowTheirOwnSettingAlone) {
    const struct {
        const char* setting;
        std::vector<std::pair<std::string, std::string>> changed; ///< amount and count of each figure that it switches
    } cases[] = {
        {"(1,2)", {{"1=1.75", "1=3"}}},
        {"(2,2)", {{"2=1.75", "2=2"}}},
        {"(3,2)", {{"3=-0.26", "3=1"}}},
        {"(4,2)",
         {{"4=30", "4=5"},
          {"18=11", "18=2"},
          {"19=19", "19=3"},
          {"20=12", "20=2"},
          {"21=5", "21=1"},
          {"50=6", "50=3"}}},
        {"(13,2)",
         {{"13=14", "13=5"},
          {"23=3.5", "23=2"},
          {"24=7.5", "24=2"},
          {"25=10", "25=2"},
          {"26=2.5", "26=1"},
          {"27=6.5", "27=2"},
          {"28=4.5", "28=2"}}},
        {"(14,3)", {{"14=3.5", "14=2"}}},
        {"(15,3)", {{"15=4", "15=1"}}},
        {"(16,3)", {{"16=0.12", "16=1"}}},
    };
    for (const auto& [setting, changed] : cases) {
        SCOPED_TRACE(setting);
        run(u"delete from sum_report"_s);
        run(u"insert into sum_report values "_s + QString::fromLatin1(setting));
        std::string expected = ' ' + sumsOfEmployee7;
        for (const auto& [amount, count] : changed) {
            const std::size_t at = expected.find(' ' + amount);
            ASSERT_NE(at, std::string::npos) << amount;
            expected.replace(at + 1, amount.size(), count);
        }
        expectBoth(7, expected.substr(1));
    }
}

TEST_F(Figures, CountRowsWhereTheSettingsSaySo) {
    run(u"insert into sum_report values (1,2),(2,2),(3,2),(4,2),(13,2),(14,3),(15,3),(16,3)"_s);
    expectBoth(7, "1=3 2=2 3=1 4=5" + statuses +
                      " 13=5 14=2 15=1 16=1 18=2 19=3 20=2 21=1 22=1 23=2 24=2 25=2 26=1 27=2 28=2 50=3");
    expectBoth(9, "4=3 18=2 19=1 20=2 21=1 22=3");
    expectBoth(5, "");
}

TEST_F(Figures, OfASingleDayAreTheSameBothWays) {
    for (const QString& settings :
         {u"delete from sum_report"_s, u"insert into sum_report values (1,2),(3,2),(4,2),(13,2),(15,3)"_s}) {
        run(settings);
        run::PlainLookups one = plain();
        run::MemoryLookups all = bulk(tenDays);
        for (const int employee : {5, 7, 9})
            for (int day = 0; day < 10; ++day) {
                const QDate date = tenDays.tanggal_awal.addDays(day);
                EXPECT_EQ(listed(one, employee, {date, date}), listed(all, employee, {date, date})) << day;
            }
    }
}

TEST_F(Figures, OfFreeHoursFollowTheirSetting) {
    const struct {
        const char* free_ot;
        const char* sum_report; ///< for figures 4 and 13
        double hours;
    } cases[] = {
        {"(-1, -1)", "", 6}, // only the row that is no setting
        {"(8, 0)", "", 6},
        {"(8, -1)", "", 1.5},
        {"(8, -1), (9, 0)", "", 1.5},
        {"(8, 0), (9, -1)", "", 6},
        {"(8, -1)", "(4,2),(13,1)", 1.5},
        {"(8, -1)", "(4,1),(13,2)", 3},
        {"(8, 0)", "(4,2),(13,1)", 3},
        {"(8, 0)", "(4,1),(13,2)", 6},
    };
    for (const auto& c : cases) {
        run(u"delete from free_ot;\ndelete from sum_report;\ninsert into free_ot values "_s + QLatin1String(c.free_ot));
        if (*c.sum_report)
            run(u"insert into sum_report values "_s + QLatin1String(c.sum_report));
        EXPECT_EQ(both(50, 7, tenDays), c.hours) << c.free_ot << ' ' << c.sum_report;
    }
}

TEST_F(Figures, OfFullAttendanceIsOneExactlyWhereTheChosenCountsCoverTheWindow) {
    const auto covered = [this](int first, int last, int employee = 7) {
        return both(17, employee, {QDate(2024, 1, first), QDate(2024, 1, last)});
    };
    EXPECT_EQ(covered(6, 7), 1) << "two days present";
    EXPECT_EQ(covered(6, 8), 1) << "and a day off";
    EXPECT_EQ(covered(5, 7), 0) << "one day missing";
    EXPECT_EQ(covered(1, 1), 0) << "two shifts on the day";
    EXPECT_EQ(covered(1, 2), 1) << "two shifts cover the next day";
    EXPECT_EQ(covered(4, 4), 1) << "present by permission";
    EXPECT_EQ(covered(6, 6, 9), 1);
    EXPECT_EQ(covered(6, 6, 5), 0);
    database().runApp(
        u"insert into global_setting values ('Hadir100_hadir','0'),('Hadir100_libur','no'),('Hadir100_izin','1')"_s);
    EXPECT_EQ(covered(6, 6), 0) << "present does not count";
    EXPECT_EQ(covered(8, 8), 1) << "an unreadable switch keeps its default";
    EXPECT_EQ(covered(5, 5), 1) << "leave counts";
    database().runApp(u"update global_setting set param_value=' -1 ' where param_id='Hadir100_hadir';\n"
                      "insert into global_setting values ('Hadir100_sakit','-1'),('Hadir100_cuti','2.5')"_s);
    EXPECT_EQ(covered(8, 8), 0) << "three counts of one day";
    EXPECT_EQ(covered(9, 9), 1) << "annual leave";
    EXPECT_EQ(covered(1, 10), 1) << "five present, five others";
}

TEST_F(Figures, AreLostOneByOneWhereATableCannotBeRead) {
    const auto lost = [](run::Lookups& lookups) {
        QStringList ids;
        for (int id = 1; id <= 50; ++id)
            try {
                (void)lookups.faktor_laporan(id, 7, tenDays);
            } catch (const db::Fault&) {
                ids << QString::number(id);
            }
        return ids.join(u' ').toStdString();
    };
    const auto expectLost = [&](const char* table, const char* ids) {
        run(u"rename table %1 to away"_s.arg(QLatin1String(table)));
        run::PlainLookups one = plain();
        run::MemoryLookups all = bulk(tenDays);
        EXPECT_EQ(lost(one), ids) << table;
        EXPECT_EQ(lost(all), ids) << table;
        run(u"rename table away to %1"_s.arg(QLatin1String(table)));
    };
    expectLost("holiday", "20 21 25 26");
    expectLost("date_temp", "4 5 6 7 8 9 10 11 12 17 18 19 20 21 22");
    expectLost("sum_report", "1 2 3 4 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28 50");
    expectLost("free_ot", "50");
    run(u"alter table shift_result change shift_ot away smallint"_s);
    run::MemoryLookups all = bulk(tenDays);
    EXPECT_EQ(lost(all), "27 28");
    run(u"alter table shift_result change away shift_ot smallint"_s);
}

TEST_F(Figures, HaveTheStatementsThatTheRecapSharesWithThem) {
    EXPECT_EQ(
        run::statementForEmployee(*run::findFigure(1)).toStdString(),
        "SELECT * FROM ( SELECT e.emp_id_auto, e.pin, e.nik, "
        "if(sm.sum_as=2, ifnull(telat_hari.late, 0), ifnull(telat.late, 0)) as late FROM emp as e "
        "left join (select sr.emp_id_auto, round(sum(sr.late),2) as late from shift_result as sr "
        "where sr.emp_id_auto=:emp_id_auto and sr.valid=0 and DATE(sr.shift_date)>=DATE(:tanggal_awal) "
        "and DATE(sr.shift_date)<DATE(:tanggal_akhir) and sr.late>0 group by sr.emp_id_auto ) as telat "
        "on e.emp_id_auto=telat.emp_id_auto "
        "left join (select emp_id_auto, shift_date, round(sum(late),2) as late from "
        "(select sr.emp_id_auto, sr.shift_date, count(late) as late from shift_result as sr "
        "where sr.emp_id_auto=:emp_id_auto and sr.valid=0 and DATE(sr.shift_date)>=DATE(:tanggal_awal) "
        "and DATE(sr.shift_date)<DATE(:tanggal_akhir) and sr.late>0 group by sr.emp_id_auto, sr.shift_date ) as telat "
        "group by emp_id_auto ) as telat_hari on e.emp_id_auto=telat_hari.emp_id_auto "
        "left join sum_report as sm on sm.sum_id=1 where e.emp_id_auto=:emp_id_auto ) as rekapitulasi");
}
