#include "toolkit/report/fr_preview.h"

#include "ui_fr_preview.h"

#include <QFileDialog>
#include <QGuiApplication>
#include <QIntValidator>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QShortcut>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

using report::PageView;

namespace {

struct ZoomStep {
    PageView::Zoom zoom;
    int percent;
};

// In the order of the entries of cmb_zoom.
constexpr std::array zoomSteps{ZoomStep{PageView::Zoom::FitWidth, 0},  ZoomStep{PageView::Zoom::FitPage, 0},
                               ZoomStep{PageView::Zoom::Percent, 50},  ZoomStep{PageView::Zoom::Percent, 75},
                               ZoomStep{PageView::Zoom::Percent, 100}, ZoomStep{PageView::Zoom::Percent, 125},
                               ZoomStep{PageView::Zoom::Percent, 150}, ZoomStep{PageView::Zoom::Percent, 200}};

/// The pointer tells that the program is busy.
class Busy final {
public:
    Busy() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Busy() { QGuiApplication::restoreOverrideCursor(); }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
};

/// Runs what may fail for reasons outside the program, and tells the user.
template <typename Action>
void tryOutput(QWidget* window, Action&& action) {
    try {
        const Busy busy;
        action();
    } catch (const report::OutputFault& fault) {
        QMessageBox box(QMessageBox::Warning, window->windowTitle(), QString::fromUtf8(fault.what()), QMessageBox::Ok,
                        window);
        box.setTextFormat(Qt::PlainText);
        box.exec();
    }
}

} // namespace

Tfrm_preview::Tfrm_preview(report::Document document, QWidget* parent) :
    QWidget(parent, Qt::Window), ui(std::make_unique<Ui::frm_preview>()) {
    ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(document.title);
    connectButtons();
    connectShortcuts();
    ui->pv_halaman->setDocument(std::move(document));
    const int count = ui->pv_halaman->pageCount();
    ui->lbl_jumlah->setText(QString::number(count));
    ui->edt_halaman->setValidator(new QIntValidator(0, 999999, this));
    pageChanged(1);
}

Tfrm_preview::~Tfrm_preview() = default;

const report::Document& Tfrm_preview::document() const {
    return ui->pv_halaman->document();
}

Tfrm_preview& Tfrm_preview::open(report::Document document, QWidget* parent) {
    auto* preview = new Tfrm_preview(std::move(document), parent);
    preview->showMaximized();
    return *preview;
}

void Tfrm_preview::connectButtons() {
    PageView* pages = ui->pv_halaman;
    connect(pages, &PageView::currentPageChanged, this, &Tfrm_preview::pageChanged);
    connect(ui->btn_pertama, &QAbstractButton::clicked, pages, [pages] { pages->goToPage(1); });
    connect(ui->btn_sebelum, &QAbstractButton::clicked, pages, [pages] { pages->goToPage(pages->currentPage() - 1); });
    connect(ui->btn_berikut, &QAbstractButton::clicked, pages, [pages] { pages->goToPage(pages->currentPage() + 1); });
    connect(ui->btn_terakhir, &QAbstractButton::clicked, pages, [pages] { pages->goToPage(pages->pageCount()); });
    connect(ui->edt_halaman, &QLineEdit::editingFinished, this, &Tfrm_preview::edt_halamanExit);
    connect(ui->cmb_zoom, &QComboBox::currentIndexChanged, this, &Tfrm_preview::cmb_zoomChange);
    connect(ui->chb_menerus, &QAbstractButton::toggled, pages,
            [pages](bool checked) { pages->setMode(checked ? PageView::Mode::Continuous : PageView::Mode::Single); });
    connect(ui->btn_cetak, &QAbstractButton::clicked, this, &Tfrm_preview::btn_cetakClick);
    connect(ui->btn_simpan, &QAbstractButton::clicked, this, &Tfrm_preview::btn_simpanClick);
    connect(ui->btn_tutup, &QAbstractButton::clicked, this, &QWidget::close);
}

void Tfrm_preview::connectShortcuts() {
    const auto bind = [this](const QKeySequence& keys, auto&& action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    PageView* pages = ui->pv_halaman;
    bind(QKeySequence::Print, [this] { btn_cetakClick(); });
    bind(QKeySequence::Save, [this] { btn_simpanClick(); });
    bind(Qt::Key_PageDown, [pages] { pages->stepForward(); });
    bind(Qt::Key_PageUp, [pages] { pages->stepBack(); });
    bind(Qt::CTRL | Qt::Key_Home, [pages] { pages->goToPage(1); });
    bind(Qt::CTRL | Qt::Key_End, [pages] { pages->goToPage(pages->pageCount()); });
}

void Tfrm_preview::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void Tfrm_preview::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    ui->pv_halaman->setFocus();
}

void Tfrm_preview::btn_cetakClick() {
    QPrinter printer(QPrinter::HighResolution);
    report::preparePrinter(printer, document());
    QPrintDialog dialog(&printer, this);
    const int count = ui->pv_halaman->pageCount();
    dialog.setMinMax(1, count);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage);
    if (dialog.exec() != QDialog::Accepted)
        return;
    std::pair pages(1, count);
    if (dialog.printRange() == QAbstractPrintDialog::CurrentPage)
        pages = {ui->pv_halaman->currentPage(), ui->pv_halaman->currentPage()};
    else if (dialog.printRange() == QAbstractPrintDialog::PageRange)
        pages = {printer.fromPage(), printer.toPage()};
    tryOutput(this, [&] { report::printPages(document(), printer, pages.first, pages.second); });
}

void Tfrm_preview::btn_simpanClick() {
    QFileDialog dialog(this, windowTitle(), {}, u"PDF (*.pdf)"_s);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"pdf"_s);
    dialog.selectFile(document().title + u".pdf"_s);
    if (dialog.exec() == QDialog::Accepted)
        tryOutput(this, [&] { report::savePdf(document(), dialog.selectedFiles().constFirst()); });
}

void Tfrm_preview::cmb_zoomChange(int index) {
    if (index >= 0 && index < int(zoomSteps.size()))
        ui->pv_halaman->setZoom(zoomSteps[size_t(index)].zoom, zoomSteps[size_t(index)].percent);
}

void Tfrm_preview::edt_halamanExit() {
    ui->pv_halaman->goToPage(ui->edt_halaman->text().toInt());
    // A number beyond the report leads to its first or last page, and the box tells which.
    ui->edt_halaman->setText(QString::number(ui->pv_halaman->currentPage()));
}

void Tfrm_preview::pageChanged(int number) {
    ui->edt_halaman->setText(QString::number(number));
    const bool isFirst = number <= 1;
    const bool isLast = number >= ui->pv_halaman->pageCount();
    ui->btn_pertama->setEnabled(!isFirst);
    ui->btn_sebelum->setEnabled(!isFirst);
    ui->btn_berikut->setEnabled(!isLast);
    ui->btn_terakhir->setEnabled(!isLast);
}
