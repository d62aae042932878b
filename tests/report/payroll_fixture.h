#pragma once

#include "register/reports/captions.h"
#include "register/reports/payroll_reports.h"
#include "register/reports/statements.h"
#include "tests/support/test_database.h"

#include <gtest/gtest.h>

/// A company with runs as the run form saves them, and its papers, printed by "budi" at a fixed moment.
/// Everybody belongs to group 1; employee n has PIN n.
class PayrollPapers : public testing::Test {
protected:
    PayrollPapers();

    enum Payment { Tunai = 0, Transfer = 1 };
    struct Component {
        int com_id;
        QString com_name;
        int type = 0;
        Payment cara_bayar = Tunai;
    };
    /// Its code is "K" and the number, its place in the order the number.
    void add(const Component& component);
    /// The kind of rule of the component in the group.
    void rule(int com_id, int jenis);
    void employee(int emp_id_auto, const QString& name);

    struct Line {
        int com_id;
        double subtot_payroll;
        QString kondisi{};
        double jml_faktor = 1;
    };
    /// What the run pays the employee.
    void pay(int process_id, int emp_id_auto, double tot_payroll, const QList<Line>& lines);

    [[nodiscard]] static payroll::Request runs(const QList<qint64>& ids) {
        return {.filter = payroll::processFilter(ids), .dtp_tgl_aw = {2026, 5, 1}, .dtp_tgl_akh = {2026, 5, 31}};
    }

    TestDatabase database;
    frame::Session session{[] { return QDateTime({2026, 6, 5}, {14, 3, 9}); }};
    report::Captions captions = payroll::defaultCaptions();
    payroll::PayrollReports reports{session, captions};
};
