#pragma once

#include <QString>

#include <exception>
#include <vector>

namespace run {

/// One component of one employee's line. Amounts are rupiah without a sign: the type tells earnings from deductions.
struct Row {
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
    int emp_id_auto = 0;
    QString pin;
    QString nik;
    QString nama;
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

/// What a computation gives, in the order of the run: neither numbered nor rounded nor totalled.
struct Run {
    std::vector<Line> lines;
};

} // namespace run
