#include "tools/robot/controls.h"

#include "tools/robot/script.h"

#include <QApplication>
#include <QEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool isForm(const QWidget* widget) {
    return widget->isVisible() && widget->objectName().startsWith("frm_"_L1, Qt::CaseInsensitive);
}

/// A window that takes no focus when it appears is no form to work on; it is spoken to by its name.
bool showsBehind(const QWidget* window) {
    return window->testAttribute(Qt::WA_ShowWithoutActivating);
}

template <typename Widgets>
QWidget* named(const QString& name, const Widgets& widgets) {
    const auto found = std::ranges::find_if(
        widgets, [&](const QWidget* widget) { return widget->objectName().compare(name, Qt::CaseInsensitive) == 0; });
    return found == widgets.end() ? nullptr : *found;
}

QWidget* formByName(const FormOrder& forms, const QString& name) {
    if (QWidget* form = named(name, forms.openForms()))
        return form;
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.removeIf([](const QWidget* window) { return !isForm(window); });
    return named(name, windows);
}

/// The form itself where it has the name.
QWidget* controlOn(QWidget* form, const QString& name) {
    return named(name, QWidgetList{form} + form->findChildren<QWidget*>());
}

} // namespace

void FormOrder::follow(QObject* watched, const QEvent* event) {
    auto* widget = qobject_cast<QWidget*>(watched);
    const bool comesForward = event->type() == QEvent::WindowActivate || event->type() == QEvent::Show;
    if (widget && widget->isWindow() && comesForward && !showsBehind(widget)) {
        std::erase(m_windows, widget);
        m_windows.push_back(widget);
    } else if (event->type() == QEvent::Destroy || event->type() == QEvent::Hide) {
        std::erase(m_windows, widget);
    }
}

std::vector<QWidget*> FormOrder::openForms() const {
    std::vector<QWidget*> forms;
    for (auto window = m_windows.rbegin(); window != m_windows.rend(); ++window) {
        for (QWidget* inner : (*window)->findChildren<QWidget*>())
            if (!inner->isWindow() && isForm(inner))
                forms.push_back(inner);
        if (isForm(*window))
            forms.push_back(*window);
    }
    return forms;
}

QWidget* findControl(const FormOrder& forms, const QString& path) {
    const qsizetype dot = path.indexOf(u'.');
    if (dot < 0) {
        const std::vector<QWidget*> open = forms.openForms();
        QWidget* control = open.empty() ? nullptr : controlOn(open.front(), path);
        if (!control && !(control = formByName(forms, path)))
            throw CommandFault(u"no control %1 on the topmost form"_s.arg(path));
        return control;
    }
    QWidget* form = formByName(forms, path.left(dot));
    if (!form)
        throw CommandFault(u"no open form %1"_s.arg(path.left(dot)));
    if (QWidget* control = controlOn(form, path.mid(dot + 1)))
        return control;
    throw CommandFault(u"no control %1"_s.arg(path));
}

QWidget* findReachable(const FormOrder& forms, const QString& path) {
    QWidget* control = findControl(forms, path);
    if (!control->isVisible())
        throw CommandFault(u"%1 is not visible"_s.arg(path));
    if (!control->isEnabled())
        throw CommandFault(u"%1 is disabled"_s.arg(path));
    const QWidget* modal = QApplication::activeModalWidget();
    if (modal && modal != control->window() && !modal->isAncestorOf(control))
        throw CommandFault(u"%1 lies behind %2"_s.arg(path, modal->objectName()));
    return control;
}
