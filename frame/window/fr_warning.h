#pragma once

#include "frame/base/services.h"

#include <QPoint>
#include <QTimer>
#include <QWidget>

#include <memory>

class QGraphicsOpacityEffect;

namespace Ui {
class frm_warning;
}

/// The quick guide: a picture of the program's road, in a window of its own that fades in and out. It takes no focus
/// from the frame.
class Tfrm_warning final : public QWidget {
    Q_OBJECT

public:
    explicit Tfrm_warning(frame::Language& language);
    ~Tfrm_warning() override;

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    /// Dragging Image2 moves the window.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class State { FadingIn, FadingOut };

    /// The texts stand in the strips of the drawing at every font size.
    void fitToDrawing();
    void fadeTimerTimer();
    void drag(const QMouseEvent& event);

    std::unique_ptr<Ui::frm_warning> m_ui;
    QTimer fadeTimer;
    QGraphicsOpacityEffect* m_fade; ///< not the window's own opacity, which some window systems do not know
    State m_state = State::FadingIn;
    int m_opacity = 0; ///< 0 to 255
    QPoint m_grip;     ///< where the picture is held, from the window's corner
};
