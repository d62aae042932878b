#pragma once

#include "base/session.h"
#include "toolkit/ui/grid_model.h"

namespace frame::recap {

/// Which cells of the recap are coloured, and how. A setting that is missing or cannot be read keeps its first value.
struct ColourSettings {
    bool cl_tampil_grid_set = false; ///< nothing is coloured without it
    bool cl_terlambat_set = false;
    bool cl_cepat_set = false; ///< leaving early, and all kinds of absence
    /// The suite offers these four as well; here they switch nothing.
    bool cl_absen_set = false;
    bool cl_absen_izin_set = false;
    bool cl_libur_set = false;
    bool cl_tampil_cetak_set = false;
    QColor cl_terlambat = Qt::black;
    QColor cl_cepat = Qt::black;
    QColor cl_absen = Qt::black;
    QColor cl_absen_izin = Qt::black;
    QColor cl_libur = Qt::black;
};

[[nodiscard]] ColourSettings readColourSettings(base::Session& session);

/// The background of a cell of the recap's grid; invalid for none.
[[nodiscard]] QColor cellColour(const ColourSettings& settings, const CellInView& cell);

} // namespace frame::recap
