#pragma once

#include "base/workspace.h"
#include "toolkit/ui/data_grid.h"

#include <functional>
#include <vector>

class QLabel;
class QTabWidget;

/// A workspace of several pages. Each page has a list and, where its plan names one, the list of what belongs to the
/// current row, under a title of its own. The page that is turned to is read anew.
class PagedWorkspace : public Workspace {
    Q_OBJECT

protected:
    struct Page {
        DataGrid* list;
        DataGrid* details = nullptr; ///< its set follows the list's
        QLabel* title = nullptr;
        std::function<QString()> titleText{};
        std::function<void()> search{};   ///< what reads the list; none: its set is reopened
        std::function<void()> rowShown{}; ///< what else depends on the current row
    };

    using Workspace::Workspace;

    /// The pages in the order of the tabs.
    void setPages(QTabWidget& tabs, std::vector<Page> pages);
    /// Reads the list of the page in front and shows its current row.
    void reload();
    /// Shows what belongs to the current row of the page in front.
    void showRow();

private:
    [[nodiscard]] const Page& page() const;

    QTabWidget* m_tabs = nullptr;
    std::vector<Page> m_pages;
};
