#include "base/paged_workspace.h"

#include "toolkit/ui/handler.h"

#include <QLabel>
#include <QTabWidget>

#include <utility>

void PagedWorkspace::setPages(QTabWidget& tabs, std::vector<Page> pages) {
    m_tabs = &tabs;
    m_pages = std::move(pages);
    onEvent(&tabs, &QTabWidget::currentChanged, this, &PagedWorkspace::reload);
    for (const Page& page : m_pages)
        onEvent(page.list, &DataGrid::rowChangedByUser, this, &PagedWorkspace::showRow);
}

const PagedWorkspace::Page& PagedWorkspace::page() const {
    return m_pages[std::size_t(m_tabs->currentIndex())];
}

void PagedWorkspace::reload() {
    const Page& shown = page();
    if (shown.search)
        shown.search();
    else
        shown.list->dataSet()->reopen();
    FitGridColumns(*shown.list);
    showRow();
}

void PagedWorkspace::showRow() {
    const Page& shown = page();
    if (shown.title)
        shown.title->setText(shown.titleText());
    if (shown.details) {
        // What cannot be read must not leave the details of one row below another.
        shown.details->dataSet()->close();
        shown.details->dataSet()->open();
        FitGridColumns(*shown.details);
    }
    if (shown.rowShown)
        shown.rowShown();
}
