#pragma once

#include <QPixmap>
#include <QWidget>

/// A drawing that fills the widget at every size and resolution; what stands on it is laid out over it.
class GuidePicture final : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap m_drawn; ///< the drawing at the present size
};
