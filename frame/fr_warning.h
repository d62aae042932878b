#pragma once

#include "base/services.h"

#include <QPoint>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <memory>
#include <optional>

class QGraphicsOpacityEffect;

namespace Ui {
class frm_warning;
}

/// The quick guide: a picture of the program's road, in a window of its own that fades in and out. It lies above all
/// others and takes the focus from none.
class Tfrm_warning final : public QWidget {
    Q_OBJECT

public:
    explicit Tfrm_warning(base::Language& language);
    ~Tfrm_warning() override;

    /// Appears in the corner of the user's screen; the window in use stays the active one.
    void appearBeside(QWidget& frame);

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    /// Dragging Image2 moves the window.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class State { FadingIn, FadingOut };

    /// The texts stand in the strips of the drawing at every font size.
    void fitToDrawing();
    void moveToCorner(const QScreen& screen);
    void fadeTimerTimer();
    void vanish();
    void grip(const QMouseEvent& event);

    std::unique_ptr<Ui::frm_warning> m_ui;
    QTimer fadeTimer;
    QGraphicsOpacityEffect* m_fade; ///< not the window's own opacity, which some window systems do not know
    State m_state = State::FadingIn;
    int m_opacity = 0;            ///< 0 to 255
    QPointer<QWidget> m_active;   ///< the user's window while this one appears
    std::optional<QPoint> m_grip; ///< where the picture is held, from the window's corner, while it is dragged
};
