#include "toolkit/ui/grid_column.h"

#include "toolkit/data/value.h"
#include "toolkit/text/number_text.h"
#include "toolkit/ui/plain_text.h"

using namespace Qt::StringLiterals;

namespace {

QString plainText(const QVariant& value) {
    QString text = data::textOf(value);
    if (value.typeId() == QMetaType::Double)
        text.replace(u'.', u',');
    return text;
}

} // namespace

GridBand::GridBand(const BandPlan& plan, QObject* parent) : QObject(parent), m_caption(plan.caption) {
    setObjectName(plan.name);
}

void GridBand::setCaption(const QString& caption) {
    m_caption = caption;
    Q_EMIT changed();
}

GridColumn::GridColumn(const ColumnPlan& plan, QObject* grid) : QObject(grid), m_plan(plan) {
    setObjectName(grid->objectName() + plan.field);
}

void GridColumn::setCaption(const QString& caption) {
    m_plan.caption = caption;
    Q_EMIT changed();
}

QString GridColumn::editText(const QVariant& value) const {
    // As it is stored: a line break must not become a blank because its cell was entered.
    const bool isPlain = m_plan.show == Show::Money || m_plan.show == Show::Factor || m_plan.show == Show::Plain;
    return isPlain ? plainText(value) : displayText(value);
}

QString GridColumn::linedUp(const QString& text) const {
    if (m_plan.show != Show::Factor || text.isEmpty())
        return text;
    // Blanks as wide as a digit and as a comma stand for the decimals that a number has not.
    constexpr QChar digit(0x2007);
    constexpr QChar comma(0x2008);
    const qsizetype at = text.indexOf(u',');
    return at < 0 ? text + comma + digit + digit : text + QString(3 - (text.size() - at), digit);
}

QString GridColumn::displayText(const QVariant& value) const {
    if (!value.isValid())
        return {};
    switch (m_plan.show) {
    case Show::Money:
        return groupedInteger(data::realOf(value));
    case Show::Factor:
        return groupedUpToTwoDecimals(data::realOf(value));
    case Show::Date:
        return data::dateOf(value).toString(u"dd/MM/yyyy"_s);
    case Show::Moment:
        return data::momentOf(value).toString(u"dd/MM/yyyy HH:mm"_s);
    case Show::Mark:
        return data::integerOf(value) == -1 ? QString(QChar(0x2713)) : QString();
    case Show::Tick:
        return {};
    case Show::Plain:
        break;
    }
    return singleLine(plainText(value));
}
