#include "tests/data/listing.h"

using namespace Qt::StringLiterals;

QStringList rowsOf(const data::DataSet& set) {
    QStringList rows;
    for (int row = 0; row < set.rowCount(); ++row) {
        QStringList values;
        for (int field = 0; field < int(set.fields().size()); ++field) {
            const QVariant& value = set.valueAt(row, field);
            values << (value.isValid() ? data::textOf(value) : u"NULL"_s);
        }
        rows << values.join(u' ');
    }
    return rows;
}

std::string listing(const data::DataSet& set) {
    QStringList rows = rowsOf(set);
    if (set.row() >= 0 && set.row() < rows.size())
        rows[set.row()] = u'[' + rows[set.row()] + u']';
    return rows.join(u" | "_s).toStdString();
}

std::vector<data::Field> integerFields(const QStringList& names) {
    std::vector<data::Field> fields;
    for (const QString& name : names)
        fields.push_back({.name = name, .type = data::FieldType::Integer});
    return fields;
}

void add(data::DataSet& set, const QVariantList& values) {
    set.append();
    for (qsizetype i = 0; i < values.size(); ++i)
        if (values[i].isValid())
            set.setValue(set.fields()[size_t(i)].name, values[i]);
    set.post();
}
