#pragma once

#include "run/reading/figure_statements.h"
#include "toolkit/data/sql_query.h"
#include "toolkit/ui/grid_column.h"

#include <QDate>

#include <memory>

/// The attendance of all employees over a period, one row per employee with every figure.
namespace frame::recap {

/// Bands and columns of the grid, in their order.
[[nodiscard]] std::vector<BandPlan> bands();
[[nodiscard]] std::vector<ColumnPlan> columns();

/// What is asked for: whom, as "where ..." on the columns of an employee, and the first and last day.
struct Question {
    QString condition;
    QDate tanggal_awal;
    QDate tanggal_akhir;
};

/// The rows, opened. A figure of several sources is their sum here, an employee without data has 0. Whether a figure
/// is an amount or a number of days stands in sum_report. Throws db::Fault.
[[nodiscard]] std::unique_ptr<data::SqlQuery> open(db::Connection& connection, const Question& question);

/// The statement behind it, with the parameters :tanggal_awal and :tanggal_akhir, the latter exclusive.
[[nodiscard]] QString statement(const QString& condition, const run::BulkSettings& settings);

} // namespace frame::recap
