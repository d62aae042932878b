#include "base/workspace.h"

#include "base/activation.h"
#include "toolkit/ui/data_label.h"
#include "toolkit/ui/enter_key.h"
#include "toolkit/ui/handler.h"

#include <QAbstractItemView>
#include <QCloseEvent>
#include <QHBoxLayout>

#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;

Workspace::Workspace(base::Services& services, QWidget* parent) : QWidget(parent), m_services(services) {
    setAttribute(Qt::WA_DeleteOnClose);
    Timer1.setInterval(std::chrono::milliseconds(50));
    connect(&Timer1, &QTimer::timeout, this, &Workspace::coversPanels);
}

void Workspace::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    Timer1.start();
    if (!event->spontaneous() && std::exchange(m_firstActivation, false))
        base::queueActivation(
            *this, [this] { FormActivate(); }, [this] { close(); });
}

void Workspace::closeEvent(QCloseEvent* event) {
    Timer1.stop();
    runHandler(this, [this] { FormClose(); });
    QWidget::closeEvent(event);
    Q_EMIT closed();
}

void Workspace::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else if (isEnter(*event) && pressFocusedButton(*this))
        return;
    else if (isEnter(*event) && m_defaultButton && !qobject_cast<QAbstractItemView*>(focusWidget()))
        m_defaultButton->click();
    else
        QWidget::keyPressEvent(event);
}

WorkspaceTitle::WorkspaceTitle(QWidget* parent) : QWidget(parent), m_caption(new DataLabel) {
    m_caption->setObjectName(u"lbl_caption"_s);
    auto* close = new QToolButton;
    close->setObjectName(u"btn_close"_s);
    close->setText(u"✕"_s);
    close->setAutoRaise(true);
    connect(close, &QToolButton::clicked, this, [this] { workspace()->close(); });
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_caption, 1);
    layout->addWidget(close);
    setProperty("judul", true);
    m_caption->setProperty("judul", true);
    close->setProperty("judul", true);
}

Workspace* WorkspaceTitle::workspace() const {
    for (QWidget* above = parentWidget(); above; above = above->parentWidget())
        if (auto* found = qobject_cast<Workspace*>(above))
            return found;
    return nullptr;
}

void WorkspaceTitle::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (Workspace* owner = workspace()) {
        owner->installEventFilter(this);
        m_caption->setText(owner->windowTitle());
    }
}

bool WorkspaceTitle::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::WindowTitleChange)
        m_caption->setText(workspace()->windowTitle());
    return false;
}
