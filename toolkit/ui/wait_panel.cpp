#include "toolkit/ui/wait_panel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

WaitPanel::WaitPanel(const Texts& texts, QWidget* window) :
    QFrame(window), m_texts(texts), lbl_tunggu(new QLabel), btn_batal_tunggu(new QPushButton(texts.cancel)) {
    setObjectName(u"pnl_tunggu"_s);
    lbl_tunggu->setObjectName(u"lbl_tunggu"_s);
    lbl_tunggu->setTextFormat(Qt::PlainText);
    btn_batal_tunggu->setObjectName(u"btn_batal_tunggu"_s);
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    setAutoFillBackground(true);
    // A click must not end what is being entered elsewhere.
    btn_batal_tunggu->setFocusPolicy(Qt::NoFocus);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(24, 18, 24, 18);
    layout->setSpacing(24);
    layout->addWidget(lbl_tunggu);
    layout->addWidget(btn_batal_tunggu);
    connect(btn_batal_tunggu, &QPushButton::clicked, this, &WaitPanel::cancel);
    connect(&m_lock, &InputLock::escapePressed, this, &WaitPanel::cancel);
}

void WaitPanel::showSeconds(qint64 seconds) {
    lbl_tunggu->setText(u"%1 %2 %3"_s.arg(m_texts.text, QString::number(seconds), m_texts.seconds));
    adjustSize();
    move(parentWidget()->rect().center() - rect().center());
    show();
    raise();
    InputLock::letEventsRun();
}

void WaitPanel::cancel() {
    m_cancelled = true;
    btn_batal_tunggu->setEnabled(false);
}
