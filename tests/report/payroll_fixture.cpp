#include "tests/report/payroll_fixture.h"

#include "toolkit/text/sql_text.h"

using namespace Qt::StringLiterals;

PayrollPapers::PayrollPapers() {
    session.ADOConn.configure(database.mainSettings());
    session.ADOConn_lang.configure(database.appSettings());
    session.login_id = u"budi"_s;
    database.run(uR"(
INSERT INTO dept VALUES (1, 'PT Contoh', 'PT Contoh'), (2, 'PT Contoh\\Produksi', 'Produksi');
INSERT INTO func VALUES (1, 'Operator');
INSERT INTO cabang VALUES (1, 'Bandung');
)"_s);
}

void PayrollPapers::add(const Component& component) {
    database.run(u"INSERT INTO z_pay_com (com_id, com_kode, com_name, type, no_urut, cara_bayar) "
                 "VALUES (%1, 'K%1', %2, %3, %1, %4)"_s.arg(component.com_id)
                     .arg(EscapeSqlText(component.com_name))
                     .arg(component.type)
                     .arg(component.cara_bayar));
}

void PayrollPapers::rule(int com_id, int jenis) {
    database.run(
        u"INSERT INTO z_pay_grp_com (com_id, grp_id, no_urut_ref, jenis) VALUES (%1, 1, %1, %2)"_s.arg(com_id).arg(
            jenis));
}

void PayrollPapers::employee(int emp_id_auto, const QString& name) {
    database.run(u"INSERT INTO emp (emp_id_auto, pin, nik, first_name, last_name, cab_id_auto, dept_id_auto, "
                 "func_id_auto, emp_status) VALUES (%1, '%1', 'N%1', %2, %3, 1, 2, 1, 0)"_s.arg(emp_id_auto)
                     .arg(EscapeSqlText(name.section(u' ', 0, 0)), EscapeSqlText(name.section(u' ', 1))));
    database.run(u"INSERT INTO z_pay_grp_emp (grp_id, emp_id_auto) VALUES (1, %1)"_s.arg(emp_id_auto));
}

void PayrollPapers::pay(int process_id, int emp_id_auto, double tot_payroll, const QList<Line>& lines) {
    database.run(u"INSERT INTO z_pay_process_d VALUES (%1, %2, %2, %3)"_s.arg(process_id)
                     .arg(emp_id_auto)
                     .arg(tot_payroll, 0, 'f', 0));
    int no_urut_ref = 0;
    for (const Line& line : lines)
        database.run(u"INSERT INTO z_pay_process_sd VALUES (%1, %2, %3, %2, %4, %5, %6, '', %7)"_s.arg(process_id)
                         .arg(emp_id_auto)
                         .arg(++no_urut_ref)
                         .arg(line.com_id)
                         .arg(line.subtot_payroll, 0, 'f', 0)
                         .arg(EscapeSqlText(line.kondisi))
                         .arg(line.jml_faktor));
}
