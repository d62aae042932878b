#include "frame/statement_wait.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {
constexpr qint64 quietMilliseconds = 1000;
}

StatementWait::StatementWait(QWidget& frame) :
    m_frame(frame), txt_tunggu(&frame, u"txt_tunggu"_s, u"Menunggu server,"_s),
    txt_detik(&frame, u"txt_detik"_s, u"detik"_s), txt_batal(&frame, u"txt_batal"_s, u"Batal"_s),
    txt_dibatalkan(&frame, u"txt_dibatalkan"_s, u"Permintaan ke server dibatalkan."_s) {}

db::StatementWatch::Wish StatementWait::waiting() {
    if (!m_clock.isValid())
        m_clock.start();
    if (m_clock.elapsed() < quietMilliseconds || !m_frame.isVisible())
        return Wish::GoOn;
    if (!m_panel) {
        QWidget* modal = QApplication::activeModalWidget();
        m_panel = std::make_unique<WaitPanel>(WaitPanel::Texts{txt_tunggu.text(), txt_detik.text(), txt_batal.text()},
                                              modal ? modal : &m_frame);
    }
    m_panel->showSeconds(m_clock.elapsed() / quietMilliseconds);
    return m_panel->isCancelled() ? Wish::Cancel : Wish::GoOn;
}

void StatementWait::ended() {
    m_panel.reset();
    m_clock.invalidate();
}
