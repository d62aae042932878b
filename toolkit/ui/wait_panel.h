#pragma once

#include "toolkit/ui/input_lock.h"

#include <QFrame>

class QLabel;
class QPushButton;

/// Lies in the middle of a window for as long as that has to wait, tells for how many seconds already, and takes no
/// input but the wish to stop waiting: its button, or Esc. The focus stays where it was.
class WaitPanel final : public QFrame {
    Q_OBJECT

public:
    struct Texts {
        QString text;    ///< what is waited for
        QString seconds; ///< stands behind the number
        QString cancel;  ///< on the button
    };

    WaitPanel(const Texts& texts, QWidget* window);

    /// Lets events run, so that the window repaints and the button can be clicked.
    void showSeconds(qint64 seconds);
    [[nodiscard]] bool isCancelled() const { return m_cancelled; }

private:
    void cancel();

    const Texts m_texts;
    QLabel* lbl_tunggu;
    QPushButton* btn_batal_tunggu;
    bool m_cancelled = false;
    const InputLock m_lock{this}; // goes first: its end still lets events run
};
