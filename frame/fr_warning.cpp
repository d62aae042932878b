#include "frame/fr_warning.h"

#include "ui_fr_warning.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGraphicsOpacityEffect>
#include <QMouseEvent>
#include <QScreen>
#include <QWindow>

#include <chrono>

using namespace Qt::StringLiterals;

namespace {

constexpr int opaque = 255;
constexpr int fadeStep = 3;
constexpr QSize guideSize(54, 28); // in lines of text, the shape of the drawing
constexpr int drawingHeight = 520; // in the drawing's own units, like the strips below

} // namespace

Tfrm_warning::Tfrm_warning(base::Language& language) :
    QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
    m_ui(std::make_unique<Ui::frm_warning>()), m_fade(new QGraphicsOpacityEffect(this)) {
    m_ui->setupUi(this);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_QuitOnClose, false);
    fitToDrawing();
    for (auto* label : findChildren<QLabel*>())
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_ui->Image2->installEventFilter(this);
    m_ui->Image2->setGraphicsEffect(m_fade);
    fadeTimer.setInterval(std::chrono::milliseconds(1));
    connect(&fadeTimer, &QTimer::timeout, this, &Tfrm_warning::fadeTimerTimer);
    connect(m_ui->Image1, &QToolButton::clicked, this, &QWidget::close);
    language.ApplyLanguage(*this);
}

Tfrm_warning::~Tfrm_warning() = default;

void Tfrm_warning::fitToDrawing() {
    // A large font on a small screen would make it cover what it explains.
    const QSize room = screen()->availableSize();
    const int line = std::min(
        {fontMetrics().height(), room.width() * 3 / 5 / guideSize.width(), room.height() / 2 / guideSize.height()});
    QFont font = this->font();
    font.setPixelSize(QFontInfo(font).pixelSize() * line / fontMetrics().height());
    setFont(font);
    setFixedSize(line * guideSize);
    const auto setShare = [this](QWidget* strip, int share) {
        strip->setFixedHeight(height() * share / drawingHeight);
    };
    setShare(m_ui->pnl_judul, 78);
    setShare(m_ui->pnl_jalan, 170);
    setShare(m_ui->pnl_langkah, 204);
    setShare(m_ui->lbl_catatan, 68);
}

/// Over the recap's last columns: search, icons and the first rows stay in sight.
void Tfrm_warning::moveToCorner(const QScreen& screen) {
    QRect corner({}, size());
    corner.moveBottomRight(screen.availableGeometry().bottomRight());
    move(corner.topLeft());
}

void Tfrm_warning::appearBeside(QWidget& frame) {
    // A list that has just closed may still be the active window.
    QWidget* active = QApplication::activeWindow();
    m_active = active && active->isVisible() ? active : &frame;
    show();
}

void Tfrm_warning::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;
    moveToCorner(m_active ? *m_active->screen() : *screen());
    m_state = State::FadingIn;
    m_opacity = 0;
    m_fade->setOpacity(0);
    fadeTimer.start();
}

// Some window systems make every new window the active one, a moment after it is shown; the user's stays it. Asking for
// the focus without need would take it from a menu or a screen that has just been opened.
bool Tfrm_warning::event(QEvent* event) {
    // Under a modal window it could neither be moved nor closed, and would lie above it all the same.
    if (event->type() == QEvent::WindowBlocked)
        vanish();
    if (event->type() == QEvent::WindowActivate && m_active) {
        QWidget* modal = QApplication::activeModalWidget();
        (modal ? modal : m_active.data())->activateWindow();
    }
    return QWidget::event(event);
}

void Tfrm_warning::vanish() {
    fadeTimer.stop();
    m_state = State::FadingOut;
    m_opacity = 0;
    close();
}

void Tfrm_warning::fadeTimerTimer() {
    m_opacity = m_state == State::FadingIn ? std::min(m_opacity + fadeStep, opaque) : std::max(m_opacity - fadeStep, 0);
    m_fade->setOpacity(double(m_opacity) / opaque);
    if (m_state == State::FadingIn && m_opacity == opaque) {
        fadeTimer.stop();
        m_active = nullptr;
    }
    if (m_state == State::FadingOut && m_opacity == 0) {
        fadeTimer.stop();
        close();
    }
}

void Tfrm_warning::closeEvent(QCloseEvent* event) {
    if (m_state == State::FadingOut) {
        event->setAccepted(m_opacity == 0);
        return;
    }
    event->ignore();
    m_state = State::FadingOut;
    m_opacity = opaque;
    fadeTimer.start();
}

bool Tfrm_warning::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress)
        grip(*static_cast<QMouseEvent*>(event));
    else if (event->type() == QEvent::MouseMove && m_grip)
        move(static_cast<QMouseEvent*>(event)->globalPosition().toPoint() - *m_grip);
    else if (event->type() == QEvent::MouseButtonRelease)
        m_grip.reset();
    return QWidget::eventFilter(watched, event);
}

void Tfrm_warning::grip(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton)
        return;
    // This window system lets no program place its windows and moves them by itself. With the others two would move it.
    if (QGuiApplication::platformName().startsWith("wayland"_L1))
        windowHandle()->startSystemMove();
    else
        m_grip = m_ui->Image2->mapTo(this, event.position().toPoint());
}
