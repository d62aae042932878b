#include "toolkit/ui/notice_bar.h"

#include "toolkit/ui/data_label.h"
#include "toolkit/ui/handler.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QMainWindow>
#include <QScreen>
#include <QToolButton>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QWidget* hostOf(const QWidget& screen) {
    const auto* frame = qobject_cast<QMainWindow*>(screen.window());
    return frame ? frame->centralWidget() : screen.window();
}

NoticeBar* barIn(const QWidget& host) {
    return host.findChild<NoticeBar*>(QString(), Qt::FindDirectChildrenOnly);
}

QToolButton* newButton(const QString& name, const QString& text) {
    auto* button = new QToolButton;
    button->setObjectName(name);
    button->setText(text);
    button->setAutoRaise(true);
    // Reached with Tab; a click leaves the focus where the work is.
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

NoticeBar& NoticeBar::of(QWidget& screen) {
    QWidget* host = hostOf(screen);
    NoticeBar* bar = barIn(*host);
    return bar ? *bar : *new NoticeBar(*host);
}

NoticeBar* NoticeBar::atActionOf(const QWidget& screen) {
    NoticeBar* bar = barIn(*hostOf(screen));
    if (bar)
        bar->m_isOld = true;
    return bar;
}

NoticeBar::NoticeBar(QWidget& host) :
    QFrame(&host), m_label(new DataLabel), m_droppedLabel(new DataLabel), m_button(newButton(u"btn_notice"_s, {})) {
    setObjectName(u"pnl_notice"_s);
    m_label->setObjectName(u"lbl_notice"_s);
    m_droppedLabel->setObjectName(u"lbl_notice_dropped"_s);
    for (DataLabel* label : {m_label, m_droppedLabel})
        label->setElideMode(Qt::ElideRight);
    QToolButton* close = newButton(u"btn_notice_close"_s, u"✕"_s);
    connect(m_button, &QToolButton::clicked, this, [this] { showingFaults(window(), m_notice.more); });
    connect(close, &QToolButton::clicked, this, [this] {
        m_isOld = true;
        hide();
    });
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 1, 2, 1);
    layout->addWidget(m_label);
    layout->addWidget(m_button);
    layout->addWidget(m_droppedLabel);
    layout->addStretch(1);
    layout->addWidget(close);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, QColor(0xff, 0xf4, 0xd6));
    setPalette(colours);
    setAutoFillBackground(true);
    host.installEventFilter(this);
    hide();
}

void NoticeBar::actionSucceeded() {
    if (m_isOld)
        hide();
}

void NoticeBar::dropOld() {
    if (!std::exchange(m_isOld, false))
        return;
    m_notice = {};
    m_dropped.clear();
    m_furtherDropped = 0;
}

void NoticeBar::tell(const Notice& notice) {
    dropOld();
    m_notice = notice;
    display();
}

void NoticeBar::tellDropped(const QString& text, int times) {
    dropOld();
    m_furtherDropped += m_dropped.isEmpty() ? times - 1 : times;
    if (m_dropped.isEmpty())
        m_dropped = text;
    display();
}

void NoticeBar::display() {
    m_label->setText(m_notice.text);
    m_label->setHidden(m_notice.text.isEmpty());
    // The number stands in front: the end of the words may not fit.
    const QString further = m_furtherDropped > 0 ? u"(+%1) "_s.arg(m_furtherDropped) : QString();
    m_droppedLabel->setText(further + m_dropped);
    m_droppedLabel->setHidden(m_dropped.isEmpty());
    m_button->setText(m_notice.moreCaption);
    m_button->setVisible(bool(m_notice.more));
    show();
    place();
    raise();
}

void NoticeBar::place() {
    const QSize room = parentWidget()->size();
    setGeometry(0, room.height() - sizeHint().height(), room.width(), sizeHint().height());
}

void NoticeBar::showEvent(QShowEvent* event) {
    QFrame::showEvent(event);
    // The window makes room as far as the screen has any; beyond that the bar covers its foot.
    const int room = screen()->availableSize().height() - window()->minimumSizeHint().height();
    parentWidget()->setContentsMargins(0, 0, 0, std::clamp(room, 0, sizeHint().height()));
}

void NoticeBar::hideEvent(QHideEvent* event) {
    QFrame::hideEvent(event);
    parentWidget()->setContentsMargins(0, 0, 0, 0);
}

bool NoticeBar::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Resize)
        place();
    return false;
}
