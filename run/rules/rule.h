#pragma once

#include <QString>

namespace run {

/// Operators of a formula as their texts name them; any other text is None.
enum class Operator : char { None, Multiply = '*', Divide = '/', Subtract = '-', Add = '+' };

[[nodiscard]] Operator operatorOf(const QString& text);

/// Where a rule's condition or formula takes its value from; any other number means no source, so 0.
enum Source { sourceFigure = 0, sourceComponent = 1 };

inline constexpr int flagOn = -1;

/// One rule row of a component inside a group, with what the catalogue says of the component. Numbers as stored: a
/// NULL is 0. nilai_rp is in rupiah.
struct Rule {
    int com_id = 0;
    int grp_id = 0;
    int hitung = 0; ///< 0 over the period, else per day; the component's first row decides
    int jenis = 0;  ///< 0 and 1 add to the earlier rows of the component, any other replaces
    int use_if_sum = 0;
    int use_kode_if = 0;
    int id_kode_if = 0;
    double min_if = 0;
    double max_if = 0;
    int use_sum = 0; ///< -1 formula, 0 the money value, any other nothing
    int use_kode_sum = 0;
    int id_kode_sum = 0;
    Operator operator_sum = Operator::None;
    double konstanta_sum = 0;
    Operator operator_sum2 = Operator::None;
    double nilai_rp = 0;
    QString com_kode;
    QString com_name;
    int typex = 0; ///< the component's type: 0 earning, else deduction
    int param = 0; ///< -1: other rules may refer to the component

    /// The formula works on what the band leaves of the condition's figure. Whether the condition is on does not
    /// matter, so a rule that is off but still names the figure takes an untouched 0.
    [[nodiscard]] bool sharesFigure() const {
        return use_kode_sum == sourceFigure && use_kode_if == sourceFigure && id_kode_if == id_kode_sum;
    }
};

/// Rules of one component as one employee of a group meets them; money values are looked up by the same three numbers.
struct RuleKey {
    int grp_id = 0;
    int com_id = 0;
    int emp_id_auto = 0;
};

} // namespace run
