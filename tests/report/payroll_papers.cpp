#include "tests/report/payroll_papers.h"

#include "register/reports/statements.h"
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
INSERT INTO z_pay_com (com_id, com_kode, com_name, type, no_urut, cara_bayar)
  SELECT seq, concat('K', seq), concat('Nama ', seq), seq>100, seq, 0 FROM seq_1_to_120;
INSERT INTO emp (emp_id_auto, pin, nik, first_name, last_name, cab_id_auto, dept_id_auto, func_id_auto, emp_status)
  VALUES (9, '9', 'N9', 'Ani', '', 1, 2, 1, 0), (10, '10', 'N10', 'Citra', 'Dewi', 1, 2, 1, 0),
         (11, '11', 'N11', 'Eko', '', 1, 2, 1, 1);
INSERT INTO z_pay_grp_emp (grp_id, emp_id_auto) VALUES (1, 9), (1, 10), (1, 11);
INSERT INTO z_pay_grp_com (com_id, grp_id, no_urut_ref, jenis) VALUES (5, 1, 1, 0), (6, 1, 2, 1), (7, 1, 3, 2);
)"_s);
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

QList<PayrollPapers::Line> PayrollPapers::lines(int first, int count) {
    QList<Line> result;
    for (int com_id = first; com_id < first + count; ++com_id)
        result << Line{com_id, 1000.0 * com_id};
    return result;
}

payroll::Request PayrollPapers::runs(const QList<qint64>& ids) {
    return {.filter = payroll::processFilter(ids), .dtp_tgl_aw = {2026, 5, 1}, .dtp_tgl_akh = {2026, 5, 31}};
}
