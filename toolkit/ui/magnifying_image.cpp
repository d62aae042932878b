#include "toolkit/ui/magnifying_image.h"

#include <QFocusEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace {
constexpr int growMilliseconds = 120;
constexpr int focusMargin = 3;
} // namespace

MagnifyingImage::MagnifyingImage(QWidget* parent) : QToolButton(parent) {
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    m_animation.setDuration(growMilliseconds);
    connect(&m_animation, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        m_scale = value.toReal();
        update();
    });
}

void MagnifyingImage::setMagnification(qreal factor) {
    m_factor = factor;
    updateGeometry();
}

QSize MagnifyingImage::sizeHint() const {
    return iconSize() * m_factor + QSize(2 * focusMargin, 2 * focusMargin);
}

void MagnifyingImage::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QRect picture(QPoint(), iconSize() * m_scale);
    picture.moveCenter(rect().center());
    icon().paint(&painter, picture, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void MagnifyingImage::moveTowards(qreal scale) {
    m_animation.stop();
    m_animation.setStartValue(m_scale);
    m_animation.setEndValue(scale);
    m_animation.start();
}

void MagnifyingImage::enterEvent(QEnterEvent* event) {
    QToolButton::enterEvent(event);
    moveTowards(m_factor);
}

void MagnifyingImage::leaveEvent(QEvent* event) {
    QToolButton::leaveEvent(event);
    moveTowards(hasFocus() ? m_factor : 1.0);
}

void MagnifyingImage::focusInEvent(QFocusEvent* event) {
    QToolButton::focusInEvent(event);
    if (event->reason() != Qt::ActiveWindowFocusReason)
        moveTowards(m_factor);
}

void MagnifyingImage::focusOutEvent(QFocusEvent* event) {
    QToolButton::focusOutEvent(event);
    moveTowards(underMouse() ? m_factor : 1.0);
}
