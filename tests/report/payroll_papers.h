#pragma once

#include "register/reports/captions.h"
#include "register/reports/payroll_reports.h"
#include "tests/support/test_database.h"

#include <gtest/gtest.h>

/// A company with runs as the run form saves them, and its papers, printed by "budi" at a fixed moment.
/// Components 1 to 100 are earnings, 101 to 120 deductions, n has the code Kn; 5, 6 and 7 have rules of the kinds 0, 1
/// and 2. Employees 9, 10 and 11 have that number as PIN; who else is paid is unknown to the company.
class PayrollPapers : public testing::Test {
protected:
    PayrollPapers();

    struct Line {
        int com_id;
        double subtot_payroll;
        QString kondisi{};
        double jml_faktor = 1;
    };
    /// What the run pays the employee.
    void pay(int process_id, int emp_id_auto, double tot_payroll, const QList<Line>& lines = {});
    /// `count` lines of the components from com_id `first` on.
    [[nodiscard]] static QList<Line> lines(int first, int count);
    [[nodiscard]] static payroll::Request runs(const QList<qint64>& ids);

    TestDatabase database;
    base::Session session{[] { return QDateTime({2026, 6, 5}, {14, 3, 9}); }};
    report::Captions captions = payroll::defaultCaptions();
    payroll::PayrollReports reports{session, captions};
};
