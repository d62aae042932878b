#include "frame/guide_picture.h"

#include <QImageReader>
#include <QPainter>

using namespace Qt::StringLiterals;

void GuidePicture::paintEvent(QPaintEvent*) {
    const QSize wanted = (QSizeF(size()) * devicePixelRatioF()).toSize();
    if (m_drawn.size() != wanted) {
        QImageReader reader(u":/window/icons/panduan.svg"_s);
        reader.setScaledSize(wanted);
        m_drawn = QPixmap::fromImage(reader.read());
        m_drawn.setDevicePixelRatio(devicePixelRatioF());
    }
    QPainter(this).drawPixmap(0, 0, m_drawn);
}
