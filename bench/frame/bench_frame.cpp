// The recap of a large company from the search to the fitted grid, and the department tree. Prints one figure a line,
// "name: value unit". The server comes from ORVANE_DB_*; --employees makes a smaller company.
#include "base/dept_tree.h"
#include "base/filter_block.h"
#include "frame/recap.h"
#include "toolkit/ui/data_grid.h"
#include "tools/company/generate.h"
#include "tools/company/install.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>
#include <QTreeWidget>

#include <chrono>

namespace {

using namespace Qt::StringLiterals;
using Clock = std::chrono::steady_clock;

constexpr int departments = 2000;
const QDate lastDay(2026, 10, 31);

void print(const QString& name, double value, const QString& unit) {
    QTextStream(stdout) << name << ": " << QString::number(value, 'f', 3) << ' ' << unit << '\n';
}

template <typename Action>
[[nodiscard]] double seconds(Action&& action) {
    const auto start = Clock::now();
    action();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// Sums over the same rows of attendance with nothing to choose between: the server cannot read them faster.
double plainAggregates(db::Connection& connection, const QDate& firstDay) {
    const QString window = u"where %1>='%2' and %1<'%3' group by emp_id_auto"_s;
    const QString from = firstDay.toString(Qt::ISODate);
    const QString until = lastDay.addDays(1).toString(Qt::ISODate);
    return seconds([&] {
        for (
            const QString& select :
            {u"select emp_id_auto, sum(late), sum(early), sum(total_ot), sum(duration), count(*) from shift_result "_s +
                 window.arg(u"shift_date"_s, from, until),
             u"select emp_id_auto, sum(duration), count(*) from date_temp "_s + window.arg(u"date_temp"_s, from, until),
             u"select emp_id_auto, sum(sum_result), count(*) from ex_absent "_s +
                 window.arg(u"tgl_awal"_s, from, until)})
            (void)connection.query(select);
    });
}

void measureRecap(db::Connection& connection, const QString& name, const QDate& firstDay) {
    print(u"plain aggregates of the server, "_s + name, plainAggregates(connection, firstDay), u"s"_s);
    std::unique_ptr<data::SqlQuery> rows;
    const double opened = seconds([&] {
        rows = frame::recap::open(connection, {base::employeesAtWork(), firstDay, lastDay});
    });
    print(u"recap, statement and rows, "_s + name, opened, u"s"_s);
    const double server = seconds([&] { (void)connection.query(rows->boundSql()); });
    print(u"recap, statement alone, "_s + name, server, u"s"_s);
    print(u"recap, employees, "_s + name, rows->recordCount(), u"rows"_s);
    const double narrowed = seconds([&] {
        (void)frame::recap::open(connection, {base::employeesAtWork() + u" and pin = '10' "_s, firstDay, lastDay});
    });
    print(u"recap of one employee, "_s + name, narrowed, u"s"_s);
    DataGrid grid;
    grid.setColumns(frame::recap::columns(), frame::recap::bands());
    const double bound = seconds([&] { grid.setDataSet(rows.get()); });
    print(u"grid takes the rows, "_s + name, bound, u"s"_s);
    print(u"FitGridColumns, "_s + name, seconds([&] { FitGridColumns(grid); }), u"s"_s);
    grid.setDataSet(nullptr);
}

/// A root, forty divisions, and departments under them in four levels.
void fillDepartments(db::Connection& connection) {
    connection.execute(u"delete from dept"_s);
    QStringList paths{u"PT Contoh"_s};
    for (int i = 1; i < departments; ++i)
        paths << paths[i <= 40 ? 0 : (i - 1) / 6] + u"\\Bagian %1"_s.arg(i);
    QStringList rows;
    for (int i = 0; i < paths.size(); ++i)
        rows << u"(%1,'%2','Bagian')"_s.arg(i + 1).arg(QString(paths[i]).replace(u'\\', u"\\\\"_s));
    std::reverse(rows.begin(), rows.end());
    connection.execute(u"insert into dept(dept_id_auto,dept_name,level_id) values "_s + rows.join(u','));
}

void measureTree(const db::ConnectionSettings& settings) {
    base::Session session(base::systemClock());
    session.ADOConn.configure(settings);
    fillDepartments(session.ADOConn);
    TreeBox box;
    print(u"FillDeptTree, first time"_s, seconds([&] { base::FillDeptTree(box, session); }), u"s"_s);
    print(u"FillDeptTree, again"_s, seconds([&] { base::FillDeptTree(box, session); }), u"s"_s);
    print(u"department tree drops down"_s, seconds([&] {
              box.show();
              box.showPopup();
              QApplication::processEvents();
          }),
          u"s"_s);
}

void measure(int employees) {
    db::ConnectionSettings settings{.host = qEnvironmentVariable("ORVANE_DB_HOST"),
                                    .port = qEnvironmentVariable("ORVANE_DB_PORT").toUShort(),
                                    .user = qEnvironmentVariable("ORVANE_DB_USER"),
                                    .password = qEnvironmentVariable("ORVANE_DB_PASSWORD"),
                                    .database = u"bench_frame_%1"_s.arg(QCoreApplication::applicationPid())};
    company::generate(settings, {.employees = employees, .months = 12, .lastMonth = lastDay});
    db::Connection connection;
    connection.configure(settings);
    measureRecap(connection, u"1 of 12 months"_s, lastDay.addDays(-30));
    measureRecap(connection, u"12 months"_s, lastDay.addDays(1).addYears(-1));
    measureTree(settings);
    company::uninstall(settings);
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QCommandLineParser options;
    options.addHelpOption();
    options.addOption({u"employees"_s, u"Size of the company."_s, u"number"_s, u"10000"_s});
    options.process(application);
    try {
        measure(options.value(u"employees"_s).toInt());
    } catch (const std::exception& fault) {
        QTextStream(stderr) << "bench_frame: " << fault.what() << '\n';
        return 1;
    }
    return 0;
}
