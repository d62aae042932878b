#include "base/delete_ticked.h"

#include "base/tick_list.h"
#include "toolkit/fault/drop_fault.h"

namespace base {

namespace {

void deleteRow(Services& services, QWidget& screen, const Deletion& deletion) {
    if (deletion.isNeeded && deletion.isNeeded()) {
        services.messages.error(&screen, *deletion.stillNeeded);
        return;
    }
    services.log(screen, deletion.action, deletion.what());
    for (const QString& statement : deletion.statements())
        try {
            services.session.ADOCom_update.execute(statement);
        } catch (const db::Fault& refused) {
            if (refused.isInterrupted())
                throw;
            deletion.giveUp(refused);
        }
}

} // namespace

void deleteTicked(data::DataSet& list, Services& services, QWidget& screen, const Deletion& deletion) {
    if (list.isEmpty() || !services.messages.confirm(&screen, deletion.question, deletion.questionDetail))
        return;
    try {
        forEachTicked(list, [&] { deleteRow(services, screen, deletion); });
    } catch (const std::exception&) {
        fault::dropFault("penyegaran daftar setelah penghapusan", deletion.refresh);
        throw;
    }
    deletion.refresh();
}

} // namespace base
