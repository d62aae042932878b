#include "tools/company/administration.h"

#include "schema/settings_keys.h"
#include "tools/company/bulk_insert.h"
#include "tools/company/dice.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

namespace company {

namespace {

constexpr int administrators = 1;
constexpr int otherUsers = 2;

struct Login {
    QString id;
    int group;
};

const QList<Login>& logins() {
    static const QList<Login> list = {{u"admin"_s, administrators},
                                      {u"hrd"_s, administrators},
                                      {u"payroll"_s, otherUsers},
                                      {u"kasir"_s, otherUsers},
                                      {u"o'neil"_s, otherUsers}};
    return list;
}

struct Setting {
    QLatin1String key;
    QString value;
};

QList<Setting> settingsFor(const Options& options) {
    const QDate last = periodOf(options).last;
    return {{schema::defaultLang, options.language},
            {schema::changeLang, u"-1"_s},
            {schema::tanggalAwalProses, last.addDays(1).addMonths(-1).toString(Qt::ISODate)},
            {schema::tanggalAkhirProses, last.toString(Qt::ISODate)},
            {schema::clTerlambatSet, u"-1"_s},
            {schema::clCepatSet, u"-1"_s},
            {schema::clAbsenSet, u"-1"_s},
            {schema::clAbsenIzinSet, u"-1"_s},
            {schema::clLiburSet, u"0"_s},
            {schema::clTampilGridSet, u"-1"_s},
            {schema::clTampilCetakSet, u"0"_s},
            {schema::clTerlambat, u"clYellow"_s},
            {schema::clCepat, u"$0080C8FF"_s},
            {schema::clAbsen, u"8421631"_s},
            {schema::clAbsenIzin, u"$FFE0C0"_s},
            {schema::clLibur, u"clSilver"_s},
            {schema::usePayrollModule, u"-1"_s},
            {schema::hadir100Hadir, u"-1"_s},
            {schema::hadir100Izin, u"0"_s},
            {schema::hadir100Sakit, u"0"_s},
            {schema::hadir100Cuti, u"0"_s},
            {schema::hadir100Libur, u"-1"_s}};
}

struct Deed {
    int module;
    QString note;
};

const QList<Deed>& deeds() {
    static const QList<Deed> list = {
        {1, u"Download data mesin - [Mesin 1 : Lobi]"_s}, {1, u"Sinkronisasi jam mesin - [Mesin 2 : Pabrik]"_s},
        {2, u"Data Karyawan - Update - [Alamat]"_s},      {2, u"Data Karyawan - Insert - [Karyawan baru]"_s},
        {3, u"Jadwal Kerja - Update - [Shift Pagi]"_s},   {4, u"Pengaturan - Update - [Hari Libur]"_s},
        {5, u"Pengecualian - Insert - [Cuti]"_s},         {5, u"Pengecualian - Insert - [Sakit]"_s},
        {6, u"Laporan - Cetak - [Rekap Kehadiran]"_s}};
    return list;
}

} // namespace

void writeSettings(db::Connection& app, const Options& options) {
    BulkInsert insert(app, "global_setting (param_id, param_value)");
    for (const Setting& one : settingsFor(options))
        insert.row(QString(one.key), one.value);
    insert.finish();
}

void writeLogins(db::Connection& app) {
    BulkInsert insert(app, "user_login (login_id, login_pwd, group_id_auto, payroll_module)");
    for (const Login& login : logins())
        insert.row(login.id, u""_s, login.group, Flag{true});
    insert.finish();
}

void writeUserLog(db::Connection& main, const Options& options) {
    const Period period = periodOf(options);
    BulkInsert insert(main, "user_log (login_id, log_date, module, log_note)");
    for (QDate day = period.first; day <= period.last; day = day.addDays(1)) {
        Dice dice{options.seed, quint64(day.toJulianDay()), 13};
        for (int left = day.dayOfWeek() == Qt::Sunday ? 0 : dice.below(3); left > 0; --left) {
            const Deed& deed = dice.pick(deeds());
            const QTime time(17 - 4 * left, dice.below(60));
            insert.row(dice.pick(logins()).id, QDateTime(day, time, Qt::UTC), deed.module, deed.note);
        }
    }
    insert.finish();
}

} // namespace company
