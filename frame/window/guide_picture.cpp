#include "frame/window/guide_picture.h"

#include <QImageReader>
#include <QPainter>

void GuidePicture::paintEvent(QPaintEvent*) {
    const QSize wanted = (QSizeF(size()) * devicePixelRatioF()).toSize();
    if (m_drawn.size() != wanted) {
        QImageReader reader(QStringLiteral(":/window/icons/panduan.svg"));
        reader.setScaledSize(wanted);
        m_drawn = QPixmap::fromImage(reader.read());
        m_drawn.setDevicePixelRatio(devicePixelRatioF());
    }
    QPainter(this).drawPixmap(0, 0, m_drawn);
}
