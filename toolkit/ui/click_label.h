#pragma once

#include <QLabel>
#include <QMouseEvent>

/// A label that can be clicked.
class ClickLabel final : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

Q_SIGNALS:
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
            Q_EMIT clicked();
    }
};
