#pragma once

#include <QString>

#include <exception>
#include <vector>

namespace run {

/// One component of one employee's line. Amounts are rupiah without a sign: the type tells earnings from deductions.
struct Row {
    int no_urut_ref = 0;
    int emp_id_auto = 0;
    int com_id = 0;
    QString com_kode;
    QString com_name;
    double subtot_payroll = 0;
    int type = 0;
    double jml_faktor = 0;
    QString kondisi;

    [[nodiscard]] QString jenis() const;
};

/// One employee of the run; somebody in two groups has two.
struct Line {
    int no_urut = 0;
    int emp_id_auto = 0;
    QString pin;
    QString nik;
    QString nama;
    double tot_payroll = 0;
    std::vector<Row> rows;
    bool isRuled = false; ///< one of the chosen components has a rule in his group
    QString fault;        ///< the first thing that kept a component from being computed, in its own words
};

/// Notes a fault in the line that it costs something, beside what else is told of it.
struct NoteFault {
    Line& line;

    void operator()(const char*, const std::exception& fault) const {
        if (line.fault.isEmpty())
            line.fault = QString::fromUtf8(fault.what());
    }
};

/// A run in memory: its lines in order, and the last number given to a line and to a row.
struct Run {
    std::vector<Line> lines;
    double tot_process = 0;
    int nomor_rincian_terakhir = 0;
    int nomor_baris_terakhir = 0;

    /// Deleting the line or the row with the last number gives that number free again; deleting another does not.
    void deleteRow(Line& line, std::size_t row);
    /// Deletes the line's rows from the last back and gives its number free; the line itself stays where it is.
    void emptyLine(Line& line);
    /// Deletes all lines from the last back.
    void clear();
};

} // namespace run
