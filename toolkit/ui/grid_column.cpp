#include "toolkit/ui/grid_column.h"

#include "toolkit/data/value.h"
#include "toolkit/text/number_text.h"

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

GridColumn::GridColumn(const ColumnPlan& plan, QObject* parent) : QObject(parent), m_plan(plan) {
    setObjectName(plan.name);
}

void GridColumn::setCaption(const QString& caption) {
    m_plan.caption = caption;
    Q_EMIT changed();
}

QString GridColumn::editText(const QVariant& value) const {
    return m_plan.show == Show::Money ? plainText(value) : displayText(value);
}

QString GridColumn::displayText(const QVariant& value) const {
    if (!value.isValid())
        return {};
    switch (m_plan.show) {
    case Show::Money:
        return groupedInteger(data::realOf(value));
    case Show::Date:
        return data::dateOf(value).toString(QStringLiteral("dd/MM/yyyy"));
    case Show::Moment:
        return data::momentOf(value).toString(QStringLiteral("dd/MM/yyyy HH:mm"));
    case Show::Tick:
        return {};
    case Show::Plain:
        break;
    }
    return plainText(value);
}
