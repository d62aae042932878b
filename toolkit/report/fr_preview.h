#pragma once

#include "toolkit/report/page_view.h"

#include <QWidget>

#include <memory>

namespace Ui {
class frm_preview;
}

/// The window that shows a finished report, page by page or continuously, prints it and saves it as PDF. It keeps the
/// document itself: what happens to the data meanwhile does not show.
class Tfrm_preview final : public QWidget {
    Q_OBJECT

public:
    Tfrm_preview(report::Document document, QWidget* parent);
    ~Tfrm_preview() override;

    [[nodiscard]] const report::Document& document() const;

    /// Opens a maximised preview that frees itself when it is closed, or with its parent.
    static Tfrm_preview& open(report::Document document, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void btn_cetakClick();
    void btn_simpanClick();
    void cmb_zoomChange(int index);
    void edt_halamanExit();
    void pageChanged(int number);
    void connectButtons();
    void connectShortcuts();

    std::unique_ptr<Ui::frm_preview> ui;
};
