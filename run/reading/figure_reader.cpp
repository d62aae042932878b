#include "run/reading/figure_reader.h"

#include "run/reading/statements.h"
#include "toolkit/db/parameters.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace run {

namespace {

using namespace Qt::StringLiterals;
using Grain = FigureRead::Grain;

constexpr double noRow = std::numeric_limits<double>::quiet_NaN();

/// The first part that has a row for an employee and day counts; 0 where none has.
Reading<FigureValues> joined(const std::vector<const Reading<FigureValues>*>& parts) {
    return readingOf([&] {
        FigureValues values = parts.front()->value();
        for (const Reading<FigureValues>* part : parts)
            std::ranges::transform(values, part->value(), values.begin(),
                                   [](double sofar, double next) { return std::isnan(sofar) ? next : sofar; });
        std::ranges::replace_if(
            values, [](double value) { return std::isnan(value); }, 0.0);
        return values;
    });
}

} // namespace

FigureReader::FigureReader(db::Connection& main, const Window& period, const QHash<int, int>& places,
                           std::function<void()> done) :
    m_main(main),
    m_period(period), m_places(places), m_done(std::move(done)) {}

std::map<FigureRead, Reading<FigureValues>> FigureReader::read(const std::set<FigureRead>& wanted) {
    std::map<FigureRead, Reading<FigureValues>> figures;
    if (wanted.empty())
        return figures;
    m_counts = readingOf([&] { return readCountSettings(m_main); });
    m_done();
    m_holidays = readingOf([&] { return readHolidayTimes(m_main, m_period); });
    m_done();
    for (const Grain grain : {Grain::Period, Grain::Day}) {
        std::vector<Part> parts = partsOf(wanted, grain);
        readAll(parts, grain);
        std::map<FigureRead, std::vector<const Reading<FigureValues>*>> partsOfFigure;
        for (const Part& part : parts)
            partsOfFigure[part.figure].push_back(&part.values);
        for (const auto& [figure, values] : partsOfFigure)
            figures.emplace(figure, joined(values));
    }
    return figures;
}

std::vector<FigureReader::Part> FigureReader::partsOf(const std::set<FigureRead>& wanted, Grain grain) {
    std::vector<Part> parts;
    const BulkSettings settings{m_counts.fault() ? CountSettings() : m_counts.value(),
                                m_holidays.fault() ? HolidayTimes() : m_holidays.value()};
    for (const FigureRead& read : wanted) {
        if (read.grain != grain)
            continue;
        const Figure& figure = *findFigure(read.id_kode_report);
        for (const FigurePart& part : figure.parts) {
            // What cannot be read takes along the figures that depend on it.
            const std::exception_ptr lost = figure.countSwitch.sum_id != 0 && m_counts.fault() ? m_counts.fault()
                                            : part.holidays != Holidays::Any                   ? m_holidays.fault()
                                                                                               : nullptr;
            if (lost)
                parts.push_back({read, {}, Reading<FigureValues>(lost)});
            else if (read.form == FigureRead::Form::Kehadiran)
                parts.push_back({read, dayColumn(part, settings.holidays), {}});
            else
                parts.push_back({read, bulkColumn(figure, part, settings), {}});
        }
    }
    return parts;
}

void FigureReader::readAll(std::vector<Part>& parts, Grain grain) {
    std::vector<Part*> open;
    for (Part& part : parts)
        if (!part.values.fault())
            open.push_back(&part);
    while (!open.empty()) {
        const BulkColumn& first = open.front()->column;
        const auto rest = std::stable_partition(open.begin(), open.end(),
                                                [&](const Part* part) { return shareStatement(part->column, first); });
        readTogether({open.begin(), rest}, grain);
        open.erase(open.begin(), rest);
    }
}

void FigureReader::readTogether(const std::vector<Part*>& parts, Grain grain) {
    const auto columns = readingOf([&] { return readColumns(parts, grain); });
    m_done();
    if (!columns.fault()) {
        for (std::size_t i = 0; i < parts.size(); ++i)
            parts[i]->values = Reading(columns.value()[i]);
    } else if (parts.size() == 1) {
        parts.front()->values = Reading<FigureValues>(columns.fault());
    } else {
        for (Part* part : parts)
            readTogether({part}, grain);
    }
}

std::vector<FigureValues> FigureReader::readColumns(const std::vector<Part*>& parts, Grain grain) {
    std::vector<BulkColumn> wanted;
    std::ranges::transform(parts, std::back_inserter(wanted), [](const Part* part) { return part->column; });
    const auto grouping = grain == Grain::Day ? Grouping::ByEmployeeAndDay : Grouping::ByEmployee;
    const QString employees = u"select emp_id_auto from emp where emp_id_auto in "_s + numberList(m_places.keys());
    db::Result rows = m_main.query(db::bindParameters(
        statementForAll(wanted, grouping, employees),
        {{u"tanggal_awal"_s, m_period.tanggal_awal}, {u"tanggal_akhir"_s, m_period.tanggal_akhir.addDays(1)}}));
    const std::size_t days = valuesPerEmployee(grain);
    std::vector<FigureValues> columns(parts.size(), FigureValues(std::size_t(m_places.size()) * days, noRow));
    while (rows.next()) {
        const std::size_t place = std::size_t(m_places[int(rows.integer(0))]) * days + std::size_t(rows.integer(1));
        for (std::size_t i = 0; i < columns.size(); ++i)
            if (const int column = int(i) + 2; !rows.isNull(column))
                columns[i][place] = rows.real(column);
    }
    return columns;
}

std::size_t FigureReader::valuesPerEmployee(Grain grain) const {
    return grain == Grain::Day ? std::size_t(daysOf(m_period)) : 1;
}

} // namespace run
