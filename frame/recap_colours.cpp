#include "frame/recap_colours.h"

#include "base/look_up.h"
#include "schema/settings_keys.h"
#include "toolkit/fault/drop_fault.h"
#include "toolkit/text/bool_text.h"
#include "toolkit/ui/colour_text.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace frame::recap {

namespace {

constexpr std::pair<QLatin1String, bool ColourSettings::*> flags[] = {
    {schema::clTerlambatSet, &ColourSettings::cl_terlambat_set},
    {schema::clCepatSet, &ColourSettings::cl_cepat_set},
    {schema::clAbsenSet, &ColourSettings::cl_absen_set},
    {schema::clAbsenIzinSet, &ColourSettings::cl_absen_izin_set},
    {schema::clLiburSet, &ColourSettings::cl_libur_set},
    {schema::clTampilGridSet, &ColourSettings::cl_tampil_grid_set},
    {schema::clTampilCetakSet, &ColourSettings::cl_tampil_cetak_set},
};

constexpr std::pair<QLatin1String, QColor ColourSettings::*> colours[] = {
    {schema::clTerlambat, &ColourSettings::cl_terlambat}, {schema::clCepat, &ColourSettings::cl_cepat},
    {schema::clAbsen, &ColourSettings::cl_absen},         {schema::clAbsenIzin, &ColourSettings::cl_absen_izin},
    {schema::clLibur, &ColourSettings::cl_libur},
};

enum class Coloured { FromOne, AtZero };

struct ColourRule {
    QLatin1String field;
    Coloured when;
    bool ColourSettings::*flag;
    QColor ColourSettings::*colour;
};

// Every kind of absence follows the flag of leaving early: the suite offers one switch for all of them.
constexpr std::array rules{
    ColourRule{"late"_L1, Coloured::FromOne, &ColourSettings::cl_terlambat_set, &ColourSettings::cl_terlambat},
    ColourRule{"early"_L1, Coloured::FromOne, &ColourSettings::cl_cepat_set, &ColourSettings::cl_cepat},
    ColourRule{"kehadiran"_L1, Coloured::AtZero, &ColourSettings::cl_cepat_set, &ColourSettings::cl_absen},
    ColourRule{"tidak_hadir"_L1, Coloured::FromOne, &ColourSettings::cl_cepat_set, &ColourSettings::cl_absen},
    ColourRule{"izin"_L1, Coloured::FromOne, &ColourSettings::cl_cepat_set, &ColourSettings::cl_absen_izin},
    ColourRule{"cuti"_L1, Coloured::FromOne, &ColourSettings::cl_cepat_set, &ColourSettings::cl_absen_izin},
    ColourRule{"sakit"_L1, Coloured::FromOne, &ColourSettings::cl_cepat_set, &ColourSettings::cl_absen_izin},
    ColourRule{"libur"_L1, Coloured::FromOne, &ColourSettings::cl_cepat_set, &ColourSettings::cl_libur},
};

} // namespace

ColourSettings readColourSettings(base::Session& session) {
    ColourSettings settings;
    const auto read = [&](QLatin1String key, auto& field, auto fromText) {
        fault::dropFault("pengaturan warna rekap", [&] {
            // A key that is not there is no fault.
            if (const QString value = base::readSetting(session.ADOConn_lang, key); !value.isEmpty())
                field = fromText(value);
        });
    };
    for (const auto& [key, flag] : flags)
        read(key, settings.*flag, boolFromText);
    for (const auto& [key, colour] : colours)
        read(key, settings.*colour, colourFromText);
    return settings;
}

QColor cellColour(const ColourSettings& settings, const CellInView& cell) {
    if (!settings.cl_tampil_grid_set)
        return {};
    for (const ColourRule& rule : rules) {
        if (cell.column.field() != rule.field || !(settings.*rule.flag))
            continue;
        const qint64 value = data::integerOf(cell.value);
        return (rule.when == Coloured::AtZero ? value == 0 : value >= 1) ? settings.*rule.colour : QColor();
    }
    return {};
}

} // namespace frame::recap
