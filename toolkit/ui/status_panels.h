#pragma once

#include <QStatusBar>

#include <vector>

class DataLabel;

/// A status bar of panels of equal width.
class StatusPanels final : public QStatusBar {
    Q_OBJECT

public:
    explicit StatusPanels(QWidget* parent = nullptr);

    void setPanelCount(int count);
    [[nodiscard]] int panelCount() const { return int(m_panels.size()); }
    void setPanelText(int index, const QString& text);
    [[nodiscard]] QString panelText(int index) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<DataLabel*> m_panels;
};
