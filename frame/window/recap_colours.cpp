#include "frame/window/recap_colours.h"

#include "schema/settings_keys.h"
#include "toolkit/data/drop_fault.h"
#include "toolkit/text/bool_text.h"
#include "toolkit/ui/colour_text.h"

#include <array>

using namespace Qt::StringLiterals;

namespace recap {

namespace {

QString valueOf(frame::Session& session, QLatin1String key) {
    session.sql_temp_lang.openSql(u"Select * from global_setting where param_id='"_s + key + u"' "_s);
    return session.sql_temp_lang.text(u"param_value"_s);
}

enum class Coloured { FromOne, AtZero };

struct ColourRule {
    QLatin1String column;
    Coloured when;
    bool ColourSettings::*flag;
    QColor ColourSettings::*colour;
};

// Every kind of absence follows the flag of leaving early: the suite offers one switch for all of them.
constexpr std::array rules{
    ColourRule{"dbg_rekaplate"_L1, Coloured::FromOne, &ColourSettings::cl_terlambat_set, &ColourSettings::cl_terlambat},
    ColourRule{"dbg_rekapearly"_L1, Coloured::FromOne, &ColourSettings::cl_cepat_set, &ColourSettings::cl_cepat},
    ColourRule{"dbg_rekapkehadiran"_L1, Coloured::AtZero, &ColourSettings::cl_cepat_set, &ColourSettings::cl_absen},
    ColourRule{"dbg_rekaptidak_hadir"_L1, Coloured::FromOne, &ColourSettings::cl_cepat_set, &ColourSettings::cl_absen},
    ColourRule{"dbg_rekapizin"_L1, Coloured::FromOne, &ColourSettings::cl_cepat_set, &ColourSettings::cl_absen_izin},
    ColourRule{"dbg_rekapcuti"_L1, Coloured::FromOne, &ColourSettings::cl_cepat_set, &ColourSettings::cl_absen_izin},
    ColourRule{"dbg_rekapsakit"_L1, Coloured::FromOne, &ColourSettings::cl_cepat_set, &ColourSettings::cl_absen_izin},
    ColourRule{"dbg_rekaplibur"_L1, Coloured::FromOne, &ColourSettings::cl_cepat_set, &ColourSettings::cl_libur},
};

} // namespace

ColourSettings readColourSettings(frame::Session& session) {
    ColourSettings settings;
    const auto readFlag = [&](QLatin1String key, bool& flag) {
        data::dropFault("a colour setting", [&] { flag = boolFromText(valueOf(session, key)); });
    };
    const auto readColour = [&](QLatin1String key, QColor& colour) {
        data::dropFault("a colour setting", [&] { colour = colourFromText(valueOf(session, key)); });
    };
    readFlag(setting::clTampilGridSet, settings.cl_tampil_grid_set);
    readFlag(setting::clTerlambatSet, settings.cl_terlambat_set);
    readFlag(setting::clCepatSet, settings.cl_cepat_set);
    readColour(setting::clTerlambat, settings.cl_terlambat);
    readColour(setting::clCepat, settings.cl_cepat);
    readColour(setting::clAbsen, settings.cl_absen);
    readColour(setting::clAbsenIzin, settings.cl_absen_izin);
    readColour(setting::clLibur, settings.cl_libur);
    return settings;
}

QColor cellColour(const ColourSettings& settings, const CellInView& cell) {
    if (!settings.cl_tampil_grid_set)
        return {};
    for (const ColourRule& rule : rules) {
        if (cell.column.objectName() != rule.column || !(settings.*rule.flag))
            continue;
        const qint64 value = data::integerOf(cell.value);
        return (rule.when == Coloured::AtZero ? value == 0 : value >= 1) ? settings.*rule.colour : QColor();
    }
    return {};
}

} // namespace recap
