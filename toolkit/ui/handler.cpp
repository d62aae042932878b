#include "toolkit/ui/handler.h"

#include "toolkit/ui/message_dialog.h"

void showFault(QWidget* screen, const std::exception& fault) {
    MessageDialog dialog(MessageKind::Error, nullptr);
    dialog.setButtonCount(1);
    // Nobody can translate what the server or the library says, so the title names the program and no language.
    dialog.setCaption(QStringLiteral("Orvane Payroll"));
    const QString form = screen ? screen->objectName() : QString();
    dialog.execute(screen, {form, QStringLiteral("fault"), QString::fromUtf8(fault.what())});
}
