#include "run/reading/figure_reader.h"
#include "run/reading/figure_statements.h"
#include "run/reading/statements.h"
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
  (7, '2024-01-04', 11, null), (7, '2024-01-04', 12, null),
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

    void expect(int emp_id_auto, const std::string& expected) {
        run::MemoryLookups lookups = bulk(tenDays);
        EXPECT_EQ(listed(lookups, emp_id_auto, tenDays), expected) << "employee " << emp_id_auto;
    }

    double figure(int id, int emp_id_auto, const Window& window) {
        return bulk(window).faktor_laporan(id, emp_id_auto, window);
    }

    db::Connection m_main;
    db::Connection m_app;
};

const std::string sumsOfEmployee7 =
    "1=1.75 2=1.75 3=-0.26 4=30 5=2 6=1 7=2 8=1 9=1 10=1 11=1 12=2 13=14 14=3.5 15=4 16=0.12 18=11 19=19 20=12 21=5 "
    "22=1 23=3.5 24=7.5 25=10 26=2.5 27=6.5 28=4.5 50=6";

} // namespace

TEST_F(Figures, AreAmountsWhereTheSettingsAreMissingOrAskForSums) {
    expect(7, sumsOfEmployee7);
    run(u"insert into sum_report values (1,1),(2,3),(3,0),(4,3),(13,null),(14,2),(15,2),(16,1)"_s);
    expect(7, sumsOfEmployee7);
}

TEST_F(Figures, FollowTheirOwnSettingAlone) {
    const struct {
        const char* setting;
        QString changed; ///< amount and count of each figure that it switches
    } cases[] = {
        {"sum_as=2 where sum_id=1", u"1=1.75>3"_s},
        {"sum_as=2 where sum_id=2", u"2=1.75>2"_s},
        {"sum_as=2 where sum_id=3", u"3=-0.26>1"_s},
        {"sum_as=2 where sum_id=4", u"4=30>5 18=11>2 19=19>3 20=12>2 21=5>1 50=6>3"_s},
        {"sum_as=2 where sum_id=13", u"13=14>5 23=3.5>2 24=7.5>2 25=10>2 26=2.5>1 27=6.5>2 28=4.5>2"_s},
        {"sum_as=3 where sum_id=14", u"14=3.5>2"_s},
        {"sum_as=3 where sum_id=15", u"15=4>2"_s},
        {"sum_as=3 where sum_id=16", u"16=0.12>2"_s},
    };
    for (const auto& [setting, changed] : cases) {
        SCOPED_TRACE(setting);
        run(u"delete from sum_report;\n"
            "insert into sum_report values (1,1),(2,1),(3,1),(4,1),(13,1),(14,1),(15,1),(16,1);\n"
            "update sum_report set %1"_s.arg(QLatin1String(setting)));
        QString expected = u' ' + QString::fromStdString(sumsOfEmployee7);
        for (const QString& figure : changed.split(u' '))
            expected.replace(u' ' + figure.section(u'>', 0, 0),
                             u' ' + figure.section(u'=', 0, 0) + u'=' + figure.section(u'>', 1));
        expect(7, expected.mid(1).toStdString());
        expect(9, "4=3 18=2 19=1 20=2 21=1 22=3");
        expect(5, "");
    }
}

TEST_F(Figures, OfFreeHoursFollowTheirSetting) {
    const struct {
        const char* free_ot;
        const char* sum_report; ///< for figures 4 and 13
        double hours;
    } cases[] = {
        {"(-1, -1)", "", 6},                                       // only the row that is no setting
        {"(8, -1)", "", 1.5},          {"(8, -1), (9, 0)", "", 3}, // every row once more
        {"(8, 0), (9, -1)", "", 12},   {"(8, -1)", "(4,2),(13,1)", 1.5}, {"(8, -1)", "(4,1),(13,2)", 3},
        {"(8, 0)", "(4,2),(13,1)", 3}, {"(8, 0)", "(4,1),(13,2)", 6},
    };
    for (const auto& c : cases) {
        run(u"delete from free_ot;\ndelete from sum_report;\ninsert into free_ot values "_s + QLatin1String(c.free_ot));
        if (*c.sum_report)
            run(u"insert into sum_report values "_s + QLatin1String(c.sum_report));
        EXPECT_EQ(figure(50, 7, tenDays), c.hours) << c.free_ot << ' ' << c.sum_report;
    }
}

TEST_F(Figures, OfFullAttendanceIsOneExactlyWhereTheChosenCountsCoverTheWindow) {
    const auto covered = [this](int first, int last, int employee = 7) {
        return figure(17, employee, {QDate(2024, 1, first), QDate(2024, 1, last)});
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
    const std::pair<const char*, const char*> cases[] = {
        {"holiday", "20 21 25 26"},
        {"date_temp", "4 5 6 7 8 9 10 11 12 17 18 19 20 21 22"},
        {"sum_report", "1 2 3 4 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28 50"},
        {"free_ot", "50"},
    };
    for (const auto& [table, ids] : cases) {
        run(u"rename table %1 to away"_s.arg(QLatin1String(table)));
        run::MemoryLookups all = bulk(tenDays);
        EXPECT_EQ(lost(all), ids) << table;
        run(u"rename table away to %1"_s.arg(QLatin1String(table)));
    }
    run(u"alter table shift_result change shift_ot away smallint"_s);
    run::MemoryLookups all = bulk(tenDays);
    EXPECT_EQ(lost(all), "27 28");
    run(u"alter table shift_result change away shift_ot smallint"_s);
}
