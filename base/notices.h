#pragma once

#include "base/fr_daftar.h"
#include "toolkit/fault/drop_fault.h"
#include "toolkit/ui/named_text.h"

#include <QHash>
#include <QTimer>
#include <QToolButton>

#include <deque>

namespace base {

/// Hears of every fault that is swallowed anywhere: the notice bar of the screen in front tells it, and a list keeps
/// the last ones for as long as the program runs. No screen knows of it.
class Notices final : public QObject {
    Q_OBJECT

public:
    /// The button opens the list and counts what nobody has looked at; it hides as long as there is nothing to show.
    Notices(Services& services, QWidget& mainWindow, QToolButton& button);

    /// Reads what the things that are given up are called in the program's language, while the server is there.
    void readTexts();

    /// What the list shows, without rows.
    [[nodiscard]] static TextList emptyList();

private:
    struct Dropped {
        QDateTime waktu;
        QString layar;
        QString hal;  ///< what was given up
        QString kata; ///< why, in the words of whoever refused
        int times = 1;
    };

    void take(const char* what, const std::exception& fault);
    void tell();
    void showCount();
    void showList();
    [[nodiscard]] QWidget& screenInFront() const;
    [[nodiscard]] QString caption(const QWidget& screen) const;

    Services& m_services;
    QWidget& m_mainWindow;
    QToolButton& m_button;
    NamedText txt_dilewati;
    NamedText txt_pemberitahuan;
    QHash<QString, QString> m_texts;
    std::vector<Dropped> m_fresh; ///< not told yet, in order
    QHash<QByteArray, std::size_t> m_freshPlaces;
    std::deque<Dropped> m_list; ///< the newest first
    int m_unread = 0;
    QTimer m_soon;
    const fault::DropListening m_listening;
};

} // namespace base
