// Times the data set at the size of a large run and prints one line per figure: "name: value unit".
#include "toolkit/data/client_data_set.h"
#include "toolkit/data/mem_table.h"

#include <QTextStream>

#include <chrono>

namespace {

using namespace Qt::StringLiterals;
using data::FieldType;

constexpr int records = 100'000;
constexpr int rowsPerLine = 10;

void report(const QString& name, double value, const QString& unit) {
    QTextStream(stdout) << name << ": " << QString::number(value, 'f', 3) << ' ' << unit << '\n';
}

template <typename Action>
void timed(const QString& name, Action&& action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    report(name, std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count(), u"ms"_s);
}

/// Ten rows a line, numbered over the whole run, as the details of a run are.
void fill(data::DataSet& set) {
    for (int i = 0; i < records; ++i) {
        set.append();
        set.setValue(u"process_id", 1);
        set.setValue(u"no_urut", i / rowsPerLine + 1);
        set.setValue(u"no_urut_ref", i + 1);
        set.setValue(u"emp_id_auto", 5000 + i / rowsPerLine);
        set.setValue(u"com_id", i % rowsPerLine + 1);
        set.setValue(u"subtot_payroll", 125'000.0 + i);
        set.setValue(u"kondisi", u"(8 x Hadir) x 125.000"_s);
        set.setValue(u"jml_faktor", 21.5);
        set.setValue(u"jenis", u"(+)"_s);
        set.post();
    }
}

void walk(data::DataSet& set) {
    double total = 0;
    for (set.first(); !set.isEof(); set.next())
        total += set.real(u"subtot_payroll");
    if (total <= 0)
        qFatal("the walk met nothing");
}

void walkByLines(data::DataSet& set) {
    int met = 0;
    for (int line = 1; line <= records / rowsPerLine; ++line) {
        set.setFilter(u"no_urut"_s, line);
        for (set.first(); !set.isEof(); set.next())
            ++met;
    }
    set.clearFilter();
    if (met != records)
        qFatal("the filters showed %d records", met);
}

void locateAll(data::DataSet& set) {
    for (int i = 0; i < records; ++i)
        if (!set.locate({{u"emp_id_auto", 5000 + i / rowsPerLine}, {u"com_id", i % rowsPerLine + 1}}))
            qFatal("record %d not found", i);
}

void removeEverySecond(data::DataSet& set) {
    for (set.first(); !set.isEof(); set.next())
        set.remove();
}

void removeFromTheLast(data::DataSet& set) {
    for (set.last(); set.recordCount() > 0;)
        set.remove();
}

void benchInMemory() {
    data::MemTable set({{.name = u"process_id"_s, .type = FieldType::Integer},
                        {.name = u"no_urut"_s, .type = FieldType::Integer},
                        {.name = u"no_urut_ref"_s, .type = FieldType::Integer},
                        {.name = u"emp_id_auto"_s, .type = FieldType::Integer},
                        {.name = u"com_id"_s, .type = FieldType::Integer},
                        {.name = u"subtot_payroll"_s, .type = FieldType::Real},
                        {.name = u"kondisi"_s},
                        {.name = u"jml_faktor"_s, .type = FieldType::Real},
                        {.name = u"jenis"_s},
                        {.name = u"nama"_s}});
    set.open();
    timed(u"append_100000"_s, [&] { fill(set); });
    timed(u"walk_100000"_s, [&] { walk(set); });
    timed(u"filter_10000_lines_and_walk_them"_s, [&] { walkByLines(set); });
    timed(u"locate_100000_by_two_fields"_s, [&] { locateAll(set); });
    set.setFilter(u"no_urut"_s, 1);
    timed(u"append_100000_under_filter_with_indexes"_s, [&] { fill(set); });
    set.clearFilter();
    timed(u"delete_every_second_of_200000"_s, [&] { removeEverySecond(set); });
    timed(u"delete_100000_from_the_last"_s, [&] { removeFromTheLast(set); });
}

db::ConnectionSettings server() {
    return {.host = qEnvironmentVariable("ORVANE_DB_HOST"),
            .port = quint16(qEnvironmentVariableIntValue("ORVANE_DB_PORT")),
            .user = qEnvironmentVariable("ORVANE_DB_USER"),
            .password = qEnvironmentVariable("ORVANE_DB_PASSWORD"),
            .database = {}};
}

/// A database of its own that ends with the benchmark.
class ScratchDatabase {
public:
    explicit ScratchDatabase(db::Connection& connection) : m_connection(connection) {
        m_connection.execute(u"CREATE DATABASE bench_data_set"_s);
        m_connection.execute(u"USE bench_data_set"_s);
        m_connection.execute(
            u"CREATE TABLE rincian (process_id int NOT NULL, no_urut int NOT NULL, no_urut_ref int NOT NULL, "
            "emp_id_auto int, com_id smallint, subtot_payroll double, kondisi varchar(100), rumus "
            "varchar(100), jml_faktor double, jenis varchar(3), "
            "PRIMARY KEY (process_id, no_urut, no_urut_ref), KEY emp_id_auto (emp_id_auto))"_s);
    }
    ~ScratchDatabase() { m_connection.execute(u"DROP DATABASE bench_data_set"_s); }
    ScratchDatabase(const ScratchDatabase&) = delete;
    ScratchDatabase& operator=(const ScratchDatabase&) = delete;

private:
    db::Connection& m_connection;
};

void timedApply(const QString& name, data::ClientDataSet& copy, db::Connection& connection) {
    const qint64 before = connection.statementCount();
    timed(name, [&] { copy.applyUpdates(); });
    report(name + u"_statements"_s, double(connection.statementCount() - before), u"statements"_s);
}

void benchOnServer() {
    db::Connection connection;
    connection.configure(server());
    const ScratchDatabase scratch(connection);
    data::SqlQuery query(connection, u"SELECT r.*, '' AS nama FROM rincian AS r ORDER BY no_urut, no_urut_ref"_s);
    data::ClientDataSet copy({.query = &query,
                              .table = u"rincian"_s,
                              .keys = {u"process_id"_s, u"no_urut"_s, u"no_urut_ref"_s},
                              .neverWritten = {u"nama"_s}});
    copy.open();
    fill(copy);
    timedApply(u"apply_100000_new"_s, copy, connection);
    timed(u"open_100000"_s, [&] { copy.reopen(); });
    for (int i = 0; i < 10'000; ++i) {
        copy.goToRow(i * 10);
        copy.editValue(u"subtot_payroll", i);
        copy.post();
    }
    timedApply(u"apply_10000_changed"_s, copy, connection);
    for (copy.first(); !copy.isEof(); copy.next())
        copy.editValue(u"kondisi", copy.text(u"no_urut_ref"));
    timedApply(u"apply_100000_changed"_s, copy, connection);
    removeFromTheLast(copy);
    timedApply(u"apply_100000_deleted"_s, copy, connection);
}

} // namespace

int main() {
    benchInMemory();
    if (qEnvironmentVariableIsSet("ORVANE_DB_HOST"))
        benchOnServer();
    return 0;
}
