#pragma once

#include <QLatin1String>

/// Names of the settings in the table global_setting of the application database.
namespace schema {

/// The language column of change_lang and tvk_message.
inline constexpr QLatin1String defaultLang("default_lang");
/// "0": the message dialogs have no Language button.
inline constexpr QLatin1String changeLang("change_lang");

/// First and last day of the recap at start-up, "yyyy-mm-dd".
inline constexpr QLatin1String tanggalAwalProses("tanggal_awal_proses");
inline constexpr QLatin1String tanggalAkhirProses("tanggal_akhir_proses");

/// Switches of cell colouring, boolean texts.
inline constexpr QLatin1String clTerlambatSet("cl_terlambat_set");
inline constexpr QLatin1String clCepatSet("cl_cepat_set");
inline constexpr QLatin1String clAbsenSet("cl_absen_set");
inline constexpr QLatin1String clAbsenIzinSet("cl_absen_izin_set");
inline constexpr QLatin1String clLiburSet("cl_libur_set");
inline constexpr QLatin1String clTampilGridSet("cl_tampil_grid_set");
inline constexpr QLatin1String clTampilCetakSet("cl_tampil_cetak_set");

/// Colours: a name such as clRed or a number, decimal or hexadecimal with $, blue in the highest byte.
inline constexpr QLatin1String clTerlambat("cl_terlambat");
inline constexpr QLatin1String clCepat("cl_cepat");
inline constexpr QLatin1String clAbsen("cl_absen");
inline constexpr QLatin1String clAbsenIzin("cl_absen_izin");
inline constexpr QLatin1String clLibur("cl_libur");

/// "-1": the audit screen lists the payroll module.
inline constexpr QLatin1String usePayrollModule("use_payroll_module");

/// Which days count towards full attendance, boolean texts.
inline constexpr QLatin1String hadir100Hadir("Hadir100_hadir");
inline constexpr QLatin1String hadir100Izin("Hadir100_izin");
inline constexpr QLatin1String hadir100Sakit("Hadir100_sakit");
inline constexpr QLatin1String hadir100Cuti("Hadir100_cuti");
inline constexpr QLatin1String hadir100Libur("Hadir100_libur");

} // namespace schema
