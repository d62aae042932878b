#pragma once

#include <QFrame>
#include <QString>

#include <functional>

class DataLabel;
class QToolButton;

/// A thin bar at the foot of a window, for what a person should know without being stopped. It shows when it is told
/// something, takes no focus, and goes with its close button or when the window's next action succeeds and tells
/// nothing. One for each window, made at its first use.
class NoticeBar final : public QFrame {
    Q_OBJECT

public:
    /// What a screen tells itself, with a button that shows more.
    struct Notice {
        QString text;
        QString moreCaption;
        std::function<void()> more;
    };

    /// The bar of the window that holds the screen; in a main window it lies above the status bar.
    [[nodiscard]] static NoticeBar& of(QWidget& screen);
    /// The same where an action of the screen begins: what the bar shows is old from now on. Null where the window has
    /// none.
    [[nodiscard]] static NoticeBar* atActionOf(const QWidget& screen);
    void actionSucceeded();

    void tell(const Notice& notice);
    /// A thing that was given up; behind the first one the bar counts.
    void tellDropped(const QString& text, int times);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    explicit NoticeBar(QWidget& host);

    void dropOld();
    void display();
    void place();

    DataLabel* m_label;        ///< what the screen tells
    DataLabel* m_droppedLabel; ///< what was given up
    QToolButton* m_button;
    Notice m_notice;
    QString m_dropped;
    int m_furtherDropped = 0;
    bool m_isOld = false;
};
