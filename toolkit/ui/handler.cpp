#include "toolkit/ui/handler.h"

#include "toolkit/ui/message_dialog.h"

void showFault(QWidget* screen, const std::exception& fault) {
    MessageDialog dialog(MessageKind::Error, nullptr);
    dialog.setButtonCount(1);
    const QString form = screen ? screen->objectName() : QString();
    dialog.execute(screen, {form, QStringLiteral("fault"), QString::fromUtf8(fault.what())});
}
