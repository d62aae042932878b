#pragma once

#include <QToolButton>
#include <QVariantAnimation>

/// A picture button whose picture grows by a factor while the mouse or the keyboard focus is on it. The room for the
/// grown picture is reserved, so nothing around it moves.
class MagnifyingImage final : public QToolButton {
    Q_OBJECT

public:
    explicit MagnifyingImage(QWidget* parent = nullptr);

    /// 1.0 leaves the picture as it is.
    void setMagnification(qreal factor);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void moveTowards(qreal scale);

    qreal m_factor = 1.0;
    qreal m_scale = 1.0;
    QVariantAnimation m_animation;
};
