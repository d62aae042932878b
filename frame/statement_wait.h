#pragma once

#include "toolkit/db/statement_watch.h"
#include "toolkit/ui/named_text.h"
#include "toolkit/ui/wait_panel.h"

#include <QElapsedTimer>

#include <memory>

/// Shows statements that take longer than a second, over whatever screen has started them, and lets the user stop them.
/// While the frame itself does not show yet, nothing is shown and nothing can be stopped.
class StatementWait final : public db::StatementWatch {
public:
    /// The texts become named objects of the frame.
    explicit StatementWait(QWidget& frame);

    [[nodiscard]] Wish waiting() override;
    void ended() override;
    [[nodiscard]] QString cancelled() const override { return txt_dibatalkan.text(); }

private:
    QWidget& m_frame;
    QElapsedTimer m_clock;
    std::unique_ptr<WaitPanel> m_panel;
    NamedText txt_tunggu;
    NamedText txt_detik;
    NamedText txt_batal;
    NamedText txt_dibatalkan;
};
