#include "toolkit/ui/status_panels.h"

#include <QLabel>

StatusPanels::StatusPanels(QWidget* parent) : QStatusBar(parent) {}

void StatusPanels::setPanelCount(int count) {
    for (QLabel* panel : m_panels)
        delete panel;
    m_panels.clear();
    for (int i = 0; i < count; ++i) {
        auto* panel = new QLabel;
        panel->setObjectName(QStringLiteral("panel_%1").arg(i));
        panel->setTextFormat(Qt::PlainText);
        // Without this a long text would take width from its neighbours.
        panel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        panel->setMargin(3);
        addWidget(panel, 1);
        m_panels.push_back(panel);
    }
}

void StatusPanels::setPanelText(int index, const QString& text) {
    QLabel* panel = m_panels.at(std::size_t(index));
    panel->setText(text);
    panel->setToolTip(QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped()));
}

QString StatusPanels::panelText(int index) const {
    return m_panels.at(std::size_t(index))->text();
}
