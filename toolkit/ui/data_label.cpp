#include "toolkit/ui/data_label.h"

#include "toolkit/ui/plain_text.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

DataLabel::DataLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

QSize DataLabel::sizeHint() const {
    const QMargins around = contentsMargins();
    // Rounded down, the width of a whole text would be one in which it is cut.
    const int width = fontMetrics().horizontalAdvance(singleLine(text())) + 1;
    const QSize line(width, fontMetrics().height());
    return line + QSize(around.left() + around.right() + 2 * margin(), around.top() + around.bottom() + 2 * margin());
}

QSize DataLabel::minimumSizeHint() const {
    constexpr int fewCharacters = 4;
    const QSize whole = sizeHint();
    return {std::min(whole.width(), fontMetrics().averageCharWidth() * fewCharacters), whole.height()};
}

bool DataLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip)
        setToolTip(plainToolTip(text()));
    return QLabel::event(event);
}

void DataLabel::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    QPainter painter(this);
    const QRect room = contentsRect().marginsRemoved({margin(), margin(), margin(), margin()});
    const QString shown = fontMetrics().elidedText(singleLine(text()), m_elideMode, room.width());
    // The direction is the screen's, so that an amount stands at the end also behind a name that runs from right to
    // left.
    style()->drawItemText(&painter, room, int(alignment()) | Qt::TextForceLeftToRight | Qt::TextSingleLine, palette(),
                          isEnabled(), shown, foregroundRole());
}
