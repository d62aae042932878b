#include "run/rules/lookups.h"

#include "run/rules/figure_numbers.h"

#include <algorithm>

namespace run {

qint64 daysOf(const Window& window) {
    return std::max<qint64>(0, window.tanggal_awal.daysTo(window.tanggal_akhir) + 1);
}

double Lookups::faktor_laporan(int id_kode_report, int emp_id_auto, const Window& window) {
    if (id_kode_report == figureHadirSeratus)
        return hadir_seratus(emp_id_auto, window);
    return figure(id_kode_report, emp_id_auto, window);
}

double Lookups::hadir_seratus(int emp_id_auto, const Window& window) {
    const Hadir100 counts = hadir100();
    double total = 0;
    if (counts.hadir)
        total += kehadiran(emp_id_auto, window);
    if (counts.izin)
        total += figure(figureIzin, emp_id_auto, window);
    if (counts.sakit)
        total += figure(figureSakit, emp_id_auto, window);
    if (counts.cuti)
        total += figure(figureCuti, emp_id_auto, window);
    if (counts.libur)
        total += figure(figureLibur, emp_id_auto, window);
    const int days = selisih_hari(window.tanggal_akhir.addDays(1), window.tanggal_awal);
    return days - total == 0 ? 1 : 0;
}

} // namespace run
