#include "run/rules/formula.h"

namespace run {

namespace {

double difference(double value, double edge) {
    return double(Extended(value) - edge);
}

void fail(Working& working) {
    working.lolos = false;
    working.nilai_kondisi = 0;
}

Money firstOperation(const Rule& rule, Extended parameter) {
    const Extended constant = rule.konstanta_sum;
    switch (rule.operator_sum) {
    case Operator::Multiply:
        return moneyOfUnits(parameter * constant * unitsPerRupiah);
    case Operator::Divide:
        return moneyOfUnits(quotient(parameter, constant) * unitsPerRupiah);
    case Operator::Subtract:
        return moneyOfUnits((parameter - constant) * unitsPerRupiah);
    case Operator::Add:
        return moneyOfUnits((parameter + constant) * unitsPerRupiah);
    case Operator::None:
        break;
    }
    return moneyOfUnits(parameter * unitsPerRupiah);
}

Money secondOperation(Operator sign, Money left, Money right) {
    const Extended hasil = left.units;
    const Extended uang = right.units;
    switch (sign) {
    case Operator::Multiply:
        return moneyOfUnits(hasil * uang / unitsPerRupiah);
    case Operator::Divide:
        return moneyOfUnits(quotient(hasil, uang) * unitsPerRupiah);
    case Operator::Subtract:
        return moneyOfUnits(hasil - uang);
    case Operator::Add:
        return moneyOfUnits(hasil + uang);
    case Operator::None:
        break;
    }
    return left;
}

} // namespace

void applyBand(const Rule& rule, Working& working) {
    const double value = working.nilai_kondisi;
    if (rule.min_if == 0 && rule.max_if == 0) {
        if (value != 0)
            fail(working);
    } else if (value < rule.min_if || value == 0) {
        fail(working);
    } else if (rule.max_if == 0) {
        working.nilai_kondisi = difference(value, rule.min_if);
        working.nilai_batas = working.nilai_asli;
    } else if (rule.max_if > 0 && value <= rule.max_if) {
        working.nilai_kondisi = difference(value, rule.min_if);
    } else if (rule.max_if > 0) {
        working.nilai_kondisi = difference(rule.max_if, rule.min_if);
        working.nilai_batas = rule.max_if;
    }
    // A negative upper edge is none: the row passes with its value unreduced.
}

void applyFormula(const Rule& rule, double parameter, Working& working) {
    if (rule.operator_sum != Operator::None)
        working.teks_kondisi.setConstant(rule.konstanta_sum);
    working.hasil = firstOperation(rule, parameter);
    if (rule.operator_sum2 == Operator::None)
        return;
    working.teks_kondisi.addMoney(rule.operator_sum2, working.nilai_uang);
    working.hasil = secondOperation(rule.operator_sum2, working.hasil, working.nilai_uang);
}

} // namespace run
