#include "base/entry_screen.h"

#include <utility>

using namespace Qt::StringLiterals;

EntryScreen::EntryScreen(base::Services& services, EntryMode mode, QWidget* parent, const Marks& marks) :
    Screen(services, parent), m_mode(mode), m_baru(this, u"txt_baru", marks.baru),
    m_ubah(this, u"txt_ubah", marks.ubah), m_lihat(this, u"txt_lihat", marks.lihat) {}

void EntryScreen::FormActivate() {
    openLists();
    if (!std::exchange(m_firstActivation, false))
        return;
    const NamedText& mark = m_mode == EntryMode::New ? m_baru : m_mode == EntryMode::Edit ? m_ubah : m_lihat;
    setWindowTitle(windowTitle() + u' ' + mark.text());
    openEntry();
}

void EntryScreen::setReadOnly(std::initializer_list<data::DataSet*> sets, std::initializer_list<QWidget*> controls) {
    for (data::DataSet* set : sets)
        set->setReadOnly(true);
    for (QWidget* control : controls)
        control->setEnabled(false);
}

bool EntryScreen::firstMissing(std::initializer_list<Required> fields) {
    for (const auto& [field, isMissing, message] : fields)
        if (isMissing) {
            m_services.messages.error(this, message);
            field->setFocus();
            return true;
        }
    return false;
}

void EntryScreen::logSave(const QString& what) {
    m_services.log(*this, m_mode == EntryMode::New ? u"Insert -"_s : u"Update -"_s, what);
}
