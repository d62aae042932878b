// Opens and closes the register, the audit log, the run form and the preview some hundred times each and prints the
// memory in use after each quarter, then the growth per opening over the second half, when all caches are warm: one
// figure a line, "name: value unit". The server comes from ORVANE_DB_*.
#include "frame/program.h"
#include "register/fr_hitung_gaji.h"
#include "tests/support/test_database.h"
#include "toolkit/report/fr_preview.h"
#include "toolkit/ui/theme.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCommandLineParser>
#include <QDialog>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

#include <malloc.h>

#include <algorithm>
#include <functional>
#include <stdexcept>

namespace {

using namespace Qt::StringLiterals;

const QDate lastDay(2026, 10, 31);

/// A run of everybody with three rows each.
const QString savedRun = uR"(
INSERT INTO z_pay_process_m (process_id, process_name, date1, date2, round_value, tot_process)
  VALUES (1, 'Gaji', '2026-10-01', '2026-10-31', 0, 0);
INSERT INTO z_pay_process_d SELECT 1, emp_id_auto, emp_id_auto, 4000000 FROM emp WHERE emp_id_auto>0;
INSERT INTO z_pay_process_sd SELECT 1, e.emp_id_auto, e.emp_id_auto * 10 + c.com_id, e.emp_id_auto, c.com_id, 1000000,
    '', '', 1 FROM emp AS e, z_pay_com AS c WHERE e.emp_id_auto>0 AND c.com_id<4;
)"_s;

/// Kibibytes that the program holds, without what the allocator keeps for later.
double inUse() {
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks + info.hblkhd) / 1024;
}

void settle() {
    for (int round = 0; round < 3; ++round) {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

template <typename Object>
Object& find(const QString& name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* found = window->objectName() == name ? qobject_cast<Object*>(window) : nullptr)
            return *found;
        if (auto* found = window->findChild<Object*>(name))
            return *found;
    }
    throw std::runtime_error("nothing is called " + name.toStdString());
}

void click(const QString& button) {
    find<QAbstractButton>(button).click();
}

/// The button opens a modal screen, which is closed as soon as its events are done.
void openAndCloseModal(const QString& button) {
    QTimer::singleShot(0, qApp, [] {
        settle();
        QApplication::activeModalWidget()->close();
    });
    click(button);
}

void openAndCloseRegister() {
    click(u"Image2"_s);
    settle();
    find<QWidget>(u"frm_hitung_gaji"_s).close();
}

void openAndClosePreview() {
    find<QAction>(u"SlipGaji1"_s).trigger();
    settle();
    find<QWidget>(u"frm_preview"_s).close();
}

void measure(const QString& name, int openings, const std::function<void()>& openAndClose) {
    QTextStream out(stdout);
    double half = 0;
    for (int done = 1; done <= openings; ++done) {
        openAndClose();
        settle();
        if (done % (openings / 4) != 0)
            continue;
        out << name << ", in use after " << done << ": " << QString::number(inUse(), 'f', 1) << " KiB\n";
        if (done == openings / 4 * 2)
            half = inUse();
    }
    out << name << ", growth: " << QString::number((inUse() - half) / (openings - openings / 2), 'f', 3)
        << " KiB/opening\n";
}

void measureAll(const QCommandLineParser& options) {
    TestDatabase database(company::Options{.employees = 60, .months = 1, .lastMonth = lastDay});
    database.run(savedRun);
    const QTemporaryDir folder;
    database.writeSettingsFile(folder.path());
    frame::ProgramEnvironment environment;
    environment.folder = folder.path();
    environment.programPath = folder.filePath(u"bench"_s);
    environment.arguments = {environment.programPath, frame::launchToken(), u"hrd"_s};
    environment.clock = [] { return lastDay.startOfDay(); };
    frame::Program program(environment);
    if (!program.start())
        throw std::runtime_error("the program does not start");
    settle();

    const int openings = std::max(4, options.value(u"openings"_s).toInt());
    measure(u"register"_s, openings, openAndCloseRegister);
    measure(u"audit log"_s, openings, [] { openAndCloseModal(u"btn_userlog"_s); });
    click(u"Image2"_s);
    settle();
    measure(u"new run"_s, openings, [] { openAndCloseModal(u"btn_tambah"_s); });
    click(u"btn_select_all"_s);
    measure(u"saved run"_s, openings, [] { openAndCloseModal(u"btn_edit"_s); });
    measure(u"preview"_s, openings, openAndClosePreview);
    program.closeAll();
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    applyTheme(application);
    QApplication::setQuitOnLastWindowClosed(false);
    // The platform without a display warns at every window of what it cannot do.
    QLoggingCategory::setFilterRules(u"default.warning=false"_s);
    QCommandLineParser options;
    options.addHelpOption();
    options.addOption({u"openings"_s, u"How often each window is opened."_s, u"number"_s, u"500"_s});
    options.process(application);
    try {
        // With a real display a window manager decides when a window is there; the loops below would wait for ever.
        if (QApplication::platformName() != u"offscreen"_s)
            throw std::runtime_error("needs QT_QPA_PLATFORM=offscreen");
        measureAll(options);
    } catch (const std::exception& fault) {
        QTextStream(stderr) << "bench_openings: " << fault.what() << '\n';
        return 1;
    }
    return 0;
}
