#include "toolkit/ui/input_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

InputDialog::InputDialog(QString caption, QString prompt, QObject* parent) :
    QObject(parent), m_caption(std::move(caption)), m_texts{std::move(prompt), u"OK"_s, u"Cancel"_s} {}

void InputDialog::setText(int index, const QString& caption) {
    if (index >= 0 && index < m_texts.size())
        m_texts[index] = caption;
}

std::optional<QString> InputDialog::execute(QWidget* owner, const QString& preset) {
    InputWindow window(m_caption, m_texts, owner);
    window.edit()->setText(preset);
    window.edit()->selectAll();
    if (window.exec() != QDialog::Accepted)
        return std::nullopt;
    return window.edit()->text();
}

InputWindow::InputWindow(const QString& caption, const QStringList& texts, QWidget* owner) :
    QDialog(owner), m_edit(new QLineEdit) {
    setWindowTitle(caption);
    m_edit->setMinimumWidth(fontMetrics().averageCharWidth() * 64);
    auto* label = new QLabel(texts[0]);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(m_edit);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(texts[1]);
    buttons->button(QDialogButtonBox::Cancel)->setText(texts[2]);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->addWidget(label);
    layout->addWidget(m_edit);
    layout->addSpacing(8);
    layout->addWidget(buttons);
}
