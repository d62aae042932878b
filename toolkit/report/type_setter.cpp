#include "toolkit/report/type_setter.h"

#include <QFontDatabase>
#include <QStringList>
#include <QTextLayout>

#include <cmath>

using namespace Qt::StringLiterals;

namespace report {

namespace {

constexpr double pointsPerMm = 72 / 25.4;

QString availableFamily() {
    for (const QString& family : {u"Arial"_s, u"Liberation Sans"_s})
        if (QFontDatabase::hasFamily(family))
            return family;
    return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
}

} // namespace

TypeSetter::TypeSetter() : m_family(availableFamily()) {}

QFont TypeSetter::font(const Look& look) const {
    QFont font(m_family);
    font.setPixelSize(int(std::lround(look.points / pointsPerMm * dotsPerMm)));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setBold(look.bold);
    font.setUnderline(look.underline);
    return font;
}

const TypeSetter::Face& TypeSetter::face(const Look& look) {
    const std::pair key(look.points, look.bold);
    const auto known = m_faces.find(key);
    if (known != m_faces.end())
        return known->second;
    const QFontMetricsF metrics(font(look));
    return m_faces.emplace(key, Face{metrics, metrics.ascent() / dotsPerMm, metrics.descent() / dotsPerMm})
        .first->second;
}

double TypeSetter::width(const QString& text, const Look& look) {
    return face(look).metrics.horizontalAdvance(text) / dotsPerMm;
}

const QString& TypeSetter::wrapped(const QString& text, const Look& look, double width) {
    const Setting setting{text, look.points, width, look.bold};
    const auto known = m_wrapped.constFind(setting);
    if (known != m_wrapped.constEnd())
        return *known;
    return *m_wrapped.insert(setting, this->width(text, look) <= width ? text : broken(text, look, width));
}

QString TypeSetter::broken(const QString& text, const Look& look, double width) {
    QTextLayout layout(text, font(look));
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width * dotsPerMm);
        lines << text.mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
    return lines.join(u'\n');
}

} // namespace report
