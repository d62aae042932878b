#pragma once

#include <QLabel>

/// A label for what comes from the data: plain text whatever it looks like, cut (in its middle) where the layout gives
/// it less width than it asks for, whole in the tool tip. A long text widens nothing.
class DataLabel final : public QLabel {
    Q_OBJECT

public:
    explicit DataLabel(QWidget* parent = nullptr);

    void setElideMode(Qt::TextElideMode mode) { m_elideMode = mode; }

    /// One line, whatever the text holds.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    // The end stays: an amount may stand there.
    Qt::TextElideMode m_elideMode = Qt::ElideMiddle;
};
