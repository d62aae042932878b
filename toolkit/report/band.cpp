#include "toolkit/report/band.h"

#include "toolkit/text/number_text.h"

#include <utility>

namespace report {

Item label(Place place, const QString& text, Look look) {
    return {.place = place, .text = [text] { return text; }, .look = look};
}

Item field(Place place, const data::DataSet& set, const QString& name, Look look) {
    return {.place = place, .text = [&set, name] { return set.text(name); }, .look = look};
}

Item amount(Place place, const data::DataSet& set, const QString& name, Look look) {
    return amount(
        place, [&set, name] { return set.real(name); }, look);
}

Item amount(Place place, std::function<double()> value, Look look) {
    return {.place = place, .text = [value = std::move(value)] { return groupedInteger(value()); }, .look = look};
}

double sumOf(const data::DataSet& set, const QString& field) {
    return sumOf(set, field, set.recordCount());
}

double sumOf(const data::DataSet& set, const QString& field, int records) {
    const int index = set.fieldIndex(field);
    double sum = 0;
    for (int row = 0; row < records; ++row)
        sum += data::realOf(set.valueAt(row, index));
    return sum;
}

} // namespace report
