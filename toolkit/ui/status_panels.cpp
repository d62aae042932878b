#include "toolkit/ui/status_panels.h"

#include "toolkit/ui/data_label.h"

#include <QPainter>

using namespace Qt::StringLiterals;

StatusPanels::StatusPanels(QWidget* parent) : QStatusBar(parent) {
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, QColor(0xe4, 0xe9, 0xed));
    setPalette(palette);
    setAutoFillBackground(true);
}

void StatusPanels::setPanelCount(int count) {
    for (DataLabel* panel : m_panels)
        delete panel;
    m_panels.clear();
    for (int i = 0; i < count; ++i) {
        auto* panel = new DataLabel;
        panel->setObjectName(u"panel_%1"_s.arg(i));
        // Without this a long text would take width from its neighbours.
        panel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        panel->setMargin(3);
        addWidget(panel, 1);
        m_panels.push_back(panel);
    }
}

void StatusPanels::paintEvent(QPaintEvent* event) {
    QStatusBar::paintEvent(event);
    QPainter painter(this);
    painter.setPen(QColor(0xc3, 0xcc, 0xd4));
    for (const DataLabel* panel : m_panels)
        painter.drawLine(panel->geometry().topRight(), panel->geometry().bottomRight());
}

void StatusPanels::setPanelText(int index, const QString& text) {
    m_panels.at(std::size_t(index))->setText(text);
}

QString StatusPanels::panelText(int index) const {
    return m_panels.at(std::size_t(index))->text();
}
