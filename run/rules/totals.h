#pragma once

#include "run/rules/run.h"

namespace run {

/// What the totals need to know of a row.
struct RowAmount {
    int type = 0;
    double subtot_payroll = 0;
};

/// The lines and rows of a run as the totals walk them, whoever holds them. Lines and rows count from 0; they are
/// visited in order, forward by hitung, from the last back by hitung2.
class RunView {
public:
    virtual ~RunView() = default;

    [[nodiscard]] virtual int lineCount() const = 0;
    [[nodiscard]] virtual int rowCount(int line) const = 0;
    [[nodiscard]] virtual RowAmount row(int line, int row) const = 0;
    virtual void setAmount(int line, int row, double subtot_payroll) = 0;
    [[nodiscard]] virtual double tot_payroll(int line) const = 0;
    virtual void setTotal(int line, double tot_payroll) = 0;
    virtual void deleteRow(int line, int row) = 0;
    /// Deletes the line with the rows it still has; the lines before it keep their numbers.
    virtual void deleteLine(int line) = 0;
};

/// Rounds every row to whole rupiah, totals every line with round_value as its unit (0: none) and gives the run's
/// total. All in 32 bits that wrap round. A row that is no amount ends its line, a line that fails ends the walk.
[[nodiscard]] double hitung(RunView& view, double round_value);

/// A line that was deleted for want of a positive amount.
struct RemovedLine {
    int line = 0; ///< where it stood before any was deleted
    bool hasDeductions = false;
};

/// Deletes rows and lines without a positive amount, from the last line back. The totals stay as they are.
[[nodiscard]] std::vector<RemovedLine> hitung2(RunView& view);

/// Why somebody of the chosen groups has no line in the end; the first that holds.
enum class WhyLeftOut { Fault, NoRule, Deductions, NothingPositive };
inline constexpr int whyLeftOutCount = 4;

struct LeftOut {
    QString pin;
    QString nik;
    QString nama;
    WhyLeftOut why = WhyLeftOut::NothingPositive;
    QString fault;
};

/// Who has no line at all, each once, in the order of the run; computed: the run as it was before lines were deleted.
[[nodiscard]] std::vector<LeftOut> leftOut(const Run& computed, const std::vector<RemovedLine>& removed);

/// The text of what the lines add up to, behind its caption; empty where the stored total shows the same. A total
/// wraps round at 32 bits, and keeps the amounts of lines that were deleted on its own pass.
[[nodiscard]] QString differingSum(const QString& caption, double stored, double sumOfLines);

} // namespace run
