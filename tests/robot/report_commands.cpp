#include "tests/robot/report_commands.h"

#include "toolkit/report/fr_preview.h"

namespace {

const report::Document& openReport(Robot& robot) {
    for (const QWidget* form : robot.forms().openForms())
        if (const auto* preview = qobject_cast<const Tfrm_preview*>(form))
            return preview->document();
    throw CommandError(QStringLiteral("no preview is open"));
}

void printReport(Robot& robot) {
    for (const QString& line : textLines(openReport(robot)))
        Robot::print(line);
}

void saveReport(Robot& robot, const QString& path) {
    try {
        savePdf(openReport(robot), path);
    } catch (const report::OutputFault& fault) {
        throw CommandError(QStringLiteral("cannot write %1: %2").arg(path, QString::fromUtf8(fault.what())));
    }
}

} // namespace

const Actions& reportActions() {
    static const Actions table{
        {QStringLiteral("report"), {0, 0, [](Robot& r, const Words&) { printReport(r); }}},
        {QStringLiteral("pdf"), {1, 1, [](Robot& r, const Words& w) { saveReport(r, w[0]); }}},
    };
    return table;
}
