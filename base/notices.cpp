#include "base/notices.h"

#include "base/workspace.h"
#include "toolkit/ui/handler.h"

#include <QApplication>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace base {

namespace {

constexpr std::size_t keptNotices = 1000;
constexpr char wasInFront[] = "wasInFront";
const QString formName = u"frm_pemberitahuan"_s;

/// Message dialogs, menus and the guide are no screens: what they show goes with them.
bool isScreen(const QWidget& window) {
    return window.objectName().startsWith("frm_"_L1) && !window.testAttribute(Qt::WA_ShowWithoutActivating);
}

/// The window that an action has opened and the window system has not brought to the front yet.
QWidget* openedJustNow() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->isVisible() && isScreen(*widget) && !widget->windowHandle()->property(wasInFront).toBool())
            return widget;
    return nullptr;
}

} // namespace

TextList Notices::emptyList() {
    return {.form = formName,
            .caption = u"Pemberitahuan"_s,
            .columns = {{u"waktu"_s, u"Waktu"_s},
                        {u"layar"_s, u"Layar"_s},
                        {u"hal"_s, u"Yang dilewati"_s},
                        {u"kata"_s, u"Sebab"_s}},
            .rows = {}};
}

Notices::Notices(Services& services, QWidget& mainWindow, QToolButton& button) :
    QObject(&mainWindow), m_services(services), m_mainWindow(mainWindow), m_button(button),
    txt_dilewati(&mainWindow, u"txt_dilewati"_s, u"Dilewati: "_s),
    txt_pemberitahuan(&mainWindow, u"txt_pemberitahuan"_s, u"Pemberitahuan"_s),
    m_listening([this](const char* what, const std::exception& fault) { take(what, fault); }) {
    m_soon.setSingleShot(true);
    m_soon.setInterval(0);
    connect(&m_soon, &QTimer::timeout, this, &Notices::tell);
    connect(&button, &QToolButton::clicked, this, [this] { showingFaults(&m_mainWindow, [this] { showList(); }); });
    button.hide();
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [](QWindow* window) {
        if (window)
            window->setProperty(wasInFront, true);
    });
}

void Notices::readTexts() {
    fault::dropFault("teks pemberitahuan", [this] {
        data::SqlQuery& sql = m_services.session.sql_temp_lang;
        sql.openSql(u"select * from change_lang where com_form='"_s + formName + u"' "_s);
        for (; !sql.isEof(); sql.next())
            // Two apostrophes stand where a text was not translated.
            if (const QString text = sql.text(m_services.language.lang_column()); !text.isEmpty() && text != u"''"_s)
                m_texts.insert(sql.text(u"com_name"), text);
    });
}

// A run drops the same fault for thousands of employees: only the first of them costs more than a look-up.
void Notices::take(const char* what, const std::exception& fault) {
    const QByteArray key = QByteArray(what) + '\n' + fault.what();
    if (const auto known = m_freshPlaces.constFind(key); known != m_freshPlaces.constEnd()) {
        ++m_fresh[*known].times;
        return;
    }
    m_freshPlaces.insert(key, m_fresh.size());
    m_fresh.push_back({.waktu = m_services.session.clock(),
                       .layar = caption(screenInFront()),
                       .hal = QString::fromUtf8(what),
                       .kata = QString::fromUtf8(fault.what())});
    m_soon.start();
}

// Told when the action is over: by then the screen that stays is in front.
void Notices::tell() {
    // Work that lets events through in between is still the same action.
    if (QApplication::overrideCursor()) {
        m_soon.start();
        return;
    }
    int times = 0;
    for (Dropped& dropped : m_fresh) {
        times += dropped.times;
        dropped.hal = m_texts.value(dropped.hal, dropped.hal);
    }
    const Dropped& first = m_fresh.front();
    NoticeBar::of(screenInFront()).tellDropped(txt_dilewati.text() + first.hal + u" - "_s + first.kata, times);
    for (Dropped& dropped : m_fresh) {
        if (dropped.times > 1)
            dropped.kata += u" (%1x)"_s.arg(dropped.times);
        m_list.push_front(dropped);
    }
    m_unread += int(m_fresh.size());
    m_fresh.clear();
    m_freshPlaces.clear();
    if (m_list.size() > keptNotices)
        m_list.resize(keptNotices);
    showCount();
}

void Notices::showCount() {
    const QString caption = txt_pemberitahuan.text();
    m_button.setText(m_unread > 0 ? u"%1 (%2)"_s.arg(caption).arg(m_unread) : caption);
    m_button.setVisible(!m_list.empty());
}

void Notices::showList() {
    m_unread = 0;
    showCount();
    TextList list = emptyList();
    for (const Dropped& dropped : m_list)
        list.rows << QStringList{dropped.waktu.toString(u"dd/MM/yyyy HH:mm:ss"), dropped.layar, dropped.hal,
                                 dropped.kata};
    Tfrm_daftar(m_services, std::move(list), &m_mainWindow).exec();
}

QWidget& Notices::screenInFront() const {
    QWidget* front = QApplication::activeModalWidget();
    if (!front)
        front = openedJustNow();
    if (!front)
        front = QApplication::activeWindow();
    while (front && !isScreen(*front))
        front = front->parentWidget() ? front->parentWidget()->window() : nullptr;
    return front ? *front : m_mainWindow;
}

QString Notices::caption(const QWidget& screen) const {
    if (&screen == &m_mainWindow)
        for (const Workspace* workspace : m_mainWindow.findChildren<Workspace*>())
            if (workspace->isVisible())
                return workspace->windowTitle();
    return screen.windowTitle();
}

} // namespace base
