#include "toolkit/ui/handler.h"

#include "toolkit/fault/fault.h"
#include "toolkit/ui/lookup_box.h"
#include "toolkit/ui/message_dialog.h"

using namespace Qt::StringLiterals;

void showFault(QWidget* screen, const std::exception& fault) {
    ActionRefusal::note();
    const auto* own = dynamic_cast<const ::fault::Fault*>(&fault);
    const bool isStopped = own && own->isInterrupted();
    MessageDialog dialog(isStopped ? MessageKind::Information : MessageKind::Error, nullptr);
    dialog.setButtonCount(1);
    // Nobody can translate what the server or the library says, so the title names the program and no language.
    dialog.setCaption(u"Orvane Payroll"_s);
    const QString form = screen ? screen->objectName() : QString();
    dialog.execute(screen, {form, u"fault"_s, QString::fromUtf8(fault.what())});
}

void finishTyping(const QWidget& screen) {
    if (auto* box = qobject_cast<LookupBox*>(screen.focusWidget()))
        box->takeTyped();
}
