#pragma once

#include <QObject>

class QWidget;

/// For as long as it lives the program takes no input: the wait cursor shows, clicks and keys are thrown away, those
/// that still stand in the queue at its end too. Of several only the newest acts.
class InputLock final : public QObject {
    Q_OBJECT

public:
    /// The panel, if there is one, and what lies in it can be clicked all the same.
    explicit InputLock(QWidget* panel = nullptr);
    ~InputLock() override;

    /// Repaints what needs it and throws input away. Handlers wait until the one that calls this has ended.
    static void letEventsRun();

Q_SIGNALS:
    void escapePressed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool isForPanel(const QObject* watched, const QEvent& event) const;

    static InputLock* s_newest;

    QWidget* const m_panel;
    InputLock* const m_older;
};
