#include "tests/frame/fixture.h"

#include <QApplication>
#include <QTimer>

using namespace Qt::StringLiterals;

SmallCompany::SmallCompany() {
    database.run(QString::fromUtf8(R"(
        insert into cabang values(1, 'Pusat'), (3, 'Cabang D''Or');
        insert into func values(1, 'Staf'), (2, 'Kepala');
        insert into dept values(1, 'PT', 'PT'), (2, 'PT\\Produksi', 'Produksi'), (3, 'PT\\Produksi\\Las', 'Las'),
            (4, 'PT\\Produksi Dua', 'Produksi Dua');
        insert into emp(emp_id_auto, pin, nik, first_name, last_name, cab_id_auto, dept_id_auto, func_id_auto,
            emp_status) values
            (-1, '0', '0', 'Tidak', 'Ada', 1, 1, 1, 0),
            (1, '1', 'N1', 'Ani', 'Putri', 1, 1, 1, 0),
            (2, 'A 2', 'N2', 'Anisa', null, 1, 2, 2, 0),
            (3, '3', 'N3', 'Ma''ruf', 'Ali', 3, 3, 1, 0),
            (4, '4', 'N4', 'Budi', 'Ani', 3, 4, 2, 0),
            (5, '5', 'N5', 'Ani', 'Keluar', 1, 2, 1, 1),
            (6, '6', 'N6', '%', 'Persen', 3, 3, 2, 0)
    )"));
    services.session.session_cab_id = base::Branch::all();
    services.session.ADOConn.configure(database.mainSettings());
    services.session.ADOConn_lang.configure(database.appSettings());
    database.runApp(u"insert into global_setting values('default_lang', 'indonesia')"_s);
    QWidget form;
    services.language.ApplyLanguage(form);
}

Message messageDuring(const std::function<void()>& action) {
    Message shown;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&shown] {
        if (auto* window = qobject_cast<MessageWindow*>(QApplication::activeModalWidget())) {
            shown = window->message();
            window->press(MessageOk);
        }
    });
    watch.start(0);
    action();
    return shown;
}
