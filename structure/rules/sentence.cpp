#include "structure/rules/sentence.h"

#include "toolkit/text/number_text.h"

#include <QStringList>

using namespace Qt::StringLiterals;
using run::Operator;
using run::Rule;

namespace structure {

namespace {

QString number(double value) {
    return plainNumber(value).replace(u'.', u',');
}

QString signText(Operator sign) {
    return sign == Operator::Multiply ? u" x "_s : u" %1 "_s.arg(QLatin1Char(char(sign)));
}

/// A sum or difference that is multiplied or divided afterwards.
bool needsBrackets(const Rule& rule) {
    const auto binds = [](Operator sign) { return sign == Operator::Multiply || sign == Operator::Divide; };
    return !binds(rule.operator_sum) && rule.operator_sum != Operator::None && binds(rule.operator_sum2);
}

class Sentence final {
public:
    Sentence(const Rule& rule, const ParameterName& nameOf, const SentenceWords& words) :
        m_rule(rule), m_nameOf(nameOf), m_words(words) {}

    [[nodiscard]] QString text() const {
        const QString amount = m_rule.use_sum == run::flagOn ? formula() : m_rule.use_sum == 0 ? money() : u"0"_s;
        const QString what = isConditional() ? m_words.jika.arg(condition(), amount) : amount;
        const bool adds = m_rule.jenis == 0 || m_rule.jenis == 1;
        return QStringList{what, m_rule.hitung == 0 ? m_words.per_periode : m_words.per_hari,
                           adds ? m_words.menambah : m_words.menggantikan}
            .join(u", "_s);
    }

private:
    [[nodiscard]] bool isConditional() const { return m_rule.use_if_sum == run::flagOn; }

    [[nodiscard]] QString name(int source, int id) const {
        const QString name = m_nameOf(source, id);
        return name.isEmpty() ? m_words.belum_dipilih : name;
    }

    [[nodiscard]] QString condition() const {
        const QString value = name(m_rule.use_kode_if, m_rule.id_kode_if);
        const double min = m_rule.min_if, max = m_rule.max_if;
        if (min == 0 && max == 0)
            return m_words.sama_dengan_0.arg(value);
        if (max > 0)
            return m_words.antara.arg(value, number(min), number(max));
        return min > 0 ? m_words.mulai.arg(value, number(min)) : m_words.lebih_dari_0.arg(value);
    }

    /// The band takes away what lies outside of it where formula and condition work on one figure.
    [[nodiscard]] QString parameter() const {
        const QString value = name(m_rule.use_kode_sum, m_rule.id_kode_sum);
        const double min = m_rule.min_if, max = m_rule.max_if;
        if (!m_rule.sharesFigure())
            return value;
        if (!isConditional() || (min == 0 && max == 0))
            return u"0"_s;
        if (max < 0)
            return value;
        QString part;
        if (max == 0)
            part = m_words.di_atas.arg(value, number(min));
        else
            part = min == 0 ? m_words.sampai.arg(value, number(max))
                            : m_words.di_atas_sampai.arg(value, number(min), number(max));
        return u'(' + part + u')';
    }

    [[nodiscard]] QString money() const { return m_words.uang.arg(groupedUpToTwoDecimals(m_rule.nilai_rp)); }

    [[nodiscard]] QString formula() const {
        QString text = parameter();
        if (m_rule.operator_sum != Operator::None)
            text += signText(m_rule.operator_sum) + number(m_rule.konstanta_sum);
        if (needsBrackets(m_rule))
            text = u'(' + text + u')';
        return m_rule.operator_sum2 == Operator::None ? text : text + signText(m_rule.operator_sum2) + money();
    }

    const Rule& m_rule;
    const ParameterName& m_nameOf;
    const SentenceWords& m_words;
};

} // namespace

SentenceWords SentenceWords::indonesian() {
    return {.jika = u"Jika %1: %2"_s,
            .antara = u"%1 antara %2 dan %3"_s,
            .mulai = u"%1 mulai %2"_s,
            .lebih_dari_0 = u"%1 lebih dari 0"_s,
            .sama_dengan_0 = u"%1 sama dengan 0"_s,
            .sampai = u"%1 sampai %2"_s,
            .di_atas = u"%1 di atas %2"_s,
            .di_atas_sampai = u"%1 di atas %2 sampai %3"_s,
            .uang = u"uang %1"_s,
            .belum_dipilih = u"(belum dipilih)"_s,
            .per_periode = u"per periode"_s,
            .per_hari = u"per hari"_s,
            .menambah = u"menambah"_s,
            .menggantikan = u"menggantikan"_s};
}

QString sentence(const Rule& rule, const ParameterName& nameOf, const SentenceWords& words) {
    return Sentence(rule, nameOf, words).text();
}

} // namespace structure
