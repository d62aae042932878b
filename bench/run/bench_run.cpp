// A month's run of a large company: what reading, computing, laying it into the run form and rounding it there take,
// beside one statement per lookup on a few of its employees. Prints one figure a line, "name: value unit". The server
// comes from ORVANE_DB_*.
#include "bench/run/month_rules.h"

#include "run/form/working_copy.h"
#include "run/reading/bulk_reader.h"
#include "run/reading/figures.h"
#include "tests/run/reference/plain_lookups.h"
#include "tools/company/generate.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <stdexcept>

namespace {

using namespace Qt::StringLiterals;
using Clock = std::chrono::steady_clock;

void print(const QString& name, double value, const QString& unit, int decimals = 3) {
    QTextStream(stdout) << name << ": " << QString::number(value, 'f', decimals) << ' ' << unit << '\n';
}

template <typename Action>
[[nodiscard]] double seconds(Action&& action) {
    const auto start = Clock::now();
    action();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// From here on the peak of the process's memory is counted anew.
void resetPeakMemory() {
    malloc_trim(0);
    QFile reset(u"/proc/self/clear_refs"_s);
    if (!reset.open(QIODevice::WriteOnly) || reset.write("5") != 1)
        throw std::runtime_error("The peak of the memory cannot be reset");
}

double peakMegabytes() {
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        throw std::runtime_error("The peak of the memory cannot be read");
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').front().toDouble() / 1024;
    throw std::runtime_error("The peak of the memory is not told");
}

/// The plain lookups, with the time that goes into the figures whose statements read every employee's rows.
class TimedLookups final : public run::PlainLookups {
public:
    using PlainLookups::PlainLookups;
    [[nodiscard]] double inWideFigures() const { return m_inWideFigures; }

protected:
    double figure(int id, int employee, const run::Window& window) override {
        const bool wide = run::findFigure(id)->countSwitch.sum_id == run::attendanceSwitch.sum_id;
        double value = 0;
        const double taken = seconds([&] { value = PlainLookups::figure(id, employee, window); });
        m_inWideFigures += wide ? taken : 0;
        return value;
    }
    double kehadiran(int employee, const run::Window& window) override {
        double value = 0;
        m_inWideFigures += seconds([&] { value = PlainLookups::kehadiran(employee, window); });
        return value;
    }

private:
    double m_inWideFigures = 0;
};

struct Measured {
    double perEmployee = 0;
    run::Run run;
};

Measured measureBulk(db::Connection& main, db::Connection& app, const run::SessionSelections& selections) {
    Measured measured;
    const qint64 before = main.statementCount() + app.statementCount();
    resetPeakMemory();
    run::LookupTables tables;
    const double read = seconds([&] { tables = run::BulkReader(main, app, selections).read(); });
    double compute = 0;
    {
        run::MemoryLookups lookups(selections.period, std::move(tables));
        compute = seconds([&] { (void)run::proses(measured.run, selections, lookups); });
    }
    const auto employees = double(measured.run.lines.size());
    std::size_t rows = 0;
    for (const run::Line& line : measured.run.lines)
        rows += line.rows.size();
    run::WorkingCopy form(main, {.login_id = u"bench"_s, .now = QDateTime::currentDateTime});
    form.openNew();
    form.cds_m.editValue(u"round_value", 100);
    const double fill = seconds([&] { form.appendRun(measured.run); });
    const double round = seconds([&] { (void)form.hitung(); });
    const double total = read + compute + fill + round;
    print(u"employees"_s, employees, u"lines"_s, 0);
    print(u"rows"_s, double(rows), u"rows"_s, 0);
    print(u"read"_s, read, u"s"_s);
    print(u"compute"_s, compute, u"s"_s);
    print(u"fill"_s, fill, u"s"_s);
    print(u"round"_s, round, u"s"_s);
    print(u"total"_s, total, u"s"_s);
    print(u"statements"_s, double(main.statementCount() + app.statementCount() - before), u"statements"_s, 0);
    print(u"peak_memory"_s, peakMegabytes(), u"MB"_s, 1);
    measured.perEmployee = total / employees;
    return measured;
}

/// Employees spread over the whole run, each ticked with his group.
run::SessionSelections sliceOf(db::Connection& main, const run::SessionSelections& selections, const run::Run& whole,
                               int employees) {
    run::SessionSelections slice = selections;
    run::EmployeeChoice& choice = slice.employees.emplace();
    for (int i = 0; i < employees; ++i) {
        const int id = whole.lines[whole.lines.size() * std::size_t(i) / std::size_t(employees)].emp_id_auto;
        db::Result group = main.query(u"select grp_id from z_pay_grp_emp where emp_id_auto=%1"_s.arg(id));
        group.next();
        choice.clb_emp_id.push_back({id, true});
        choice.vir_emp.push_back({{id, {}, {}, {}}, int(group.integer(0))});
    }
    return slice;
}

bool sameRows(const run::Line& a, const run::Line& b) {
    return std::ranges::equal(a.rows, b.rows, [](const run::Row& left, const run::Row& right) {
        return left.com_id == right.com_id && left.subtot_payroll == right.subtot_payroll &&
               left.jml_faktor == right.jml_faktor && left.kondisi == right.kondisi;
    });
}

void compare(const run::Run& plain, const run::Run& whole) {
    for (const run::Line& line : plain.lines) {
        const auto same = std::ranges::find(whole.lines, line.emp_id_auto, &run::Line::emp_id_auto);
        if (!sameRows(line, *same))
            throw std::runtime_error("The two ways differ for employee " + std::to_string(line.emp_id_auto));
    }
}

void measurePlain(db::Connection& main, db::Connection& app, const run::SessionSelections& slice,
                  const Measured& bulk) {
    TimedLookups lookups(main, app, slice);
    run::Run plain;
    const qint64 before = main.statementCount() + app.statementCount();
    const double taken = seconds([&] { (void)run::proses(plain, slice, lookups); });
    compare(plain, bulk.run);
    const auto employees = double(plain.lines.size());
    const double perEmployee = taken / employees;
    const double wide = lookups.inWideFigures() / employees;
    print(u"plain_employees"_s, employees, u"lines"_s, 0);
    print(u"plain_statements_per_employee"_s, double(main.statementCount() + app.statementCount() - before) / employees,
          u"statements"_s, 1);
    print(u"plain_per_employee"_s, perEmployee * 1000, u"ms"_s);
    print(u"plain_wide_figures_per_employee"_s, wide * 1000, u"ms"_s);
    print(u"bulk_per_employee"_s, bulk.perEmployee * 1000, u"ms"_s, 4);
    print(u"ratio"_s, perEmployee / bulk.perEmployee, u"times"_s, 0);
    print(u"ratio_without_wide_figures"_s, (perEmployee - wide) / bulk.perEmployee, u"times"_s, 0);
}

struct Size {
    int employees = 0;
    int months = 0;
    int slice = 0;
};

Size sizeOf(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOption({u"employees"_s, u"How many employees."_s, u"N"_s, u"10000"_s});
    parser.addOption({u"months"_s, u"How many months of attendance."_s, u"M"_s, u"12"_s});
    parser.addOption({u"slice"_s, u"How many employees are also computed the plain way."_s, u"K"_s, u"3"_s});
    parser.process(arguments);
    const auto number = [&](const QString& name) { return std::max(1, parser.value(name).toInt()); };
    return {number(u"employees"_s), number(u"months"_s), number(u"slice"_s)};
}

void bench(const Size& size, const db::ConnectionSettings& settings) {
    const company::Options options{
        .employees = size.employees, .months = size.months, .lastMonth = QDate(2025, 6, 1), .seed = 1};
    print(u"generate"_s, seconds([&] { company::generate(settings, options); }), u"s"_s);
    db::Connection main;
    db::Connection app;
    main.configure(settings);
    app.configure(company::applicationSettings(settings));
    installMonthRules(main);
    const run::SessionSelections selections =
        monthOf(main, {options.lastMonth, options.lastMonth.addMonths(1).addDays(-1)});
    app.open();
    const Measured bulk = measureBulk(main, app, selections);
    measurePlain(main, app, sliceOf(main, selections, bulk.run, size.slice), bulk);
}

} // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const db::ConnectionSettings settings{.host = qEnvironmentVariable("ORVANE_DB_HOST"),
                                          .port = quint16(qEnvironmentVariableIntValue("ORVANE_DB_PORT")),
                                          .user = qEnvironmentVariable("ORVANE_DB_USER"),
                                          .password = qEnvironmentVariable("ORVANE_DB_PASSWORD"),
                                          .database = u"orvane_bench_run"_s};
    try {
        const Size size = sizeOf(QCoreApplication::arguments());
        company::uninstall(settings);
        bench(size, settings);
        company::uninstall(settings);
        return 0;
    } catch (const std::exception& fault) {
        QTextStream(stderr) << "bench_run: " << fault.what() << '\n';
        return 1;
    }
}
