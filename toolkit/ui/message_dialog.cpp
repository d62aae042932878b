#include "toolkit/ui/message_dialog.h"

#include "toolkit/ui/plain_text.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array confirmationResults{MessageOk, MessageCancel, MessageLanguage};
constexpr std::array noticeResults{MessageOk, MessageLanguage};
constexpr char resultProperty[] = "messageResult";

MessageResult resultOf(MessageKind kind, int index) {
    return kind == MessageKind::Confirmation ? confirmationResults[std::size_t(index)]
                                             : noticeResults[std::size_t(index)];
}

QStyle::StandardPixmap iconOf(MessageKind kind) {
    switch (kind) {
    case MessageKind::Confirmation:
        return QStyle::SP_MessageBoxQuestion;
    case MessageKind::Error:
        return QStyle::SP_MessageBoxCritical;
    case MessageKind::Information:
        break;
    }
    return QStyle::SP_MessageBoxInformation;
}

QString defaultCaption(MessageKind kind) {
    switch (kind) {
    case MessageKind::Confirmation:
        return u"Konfirmasi"_s;
    case MessageKind::Error:
        return u"Kesalahan"_s;
    case MessageKind::Information:
        break;
    }
    return u"Informasi"_s;
}

QStringList defaultButtons(MessageKind kind) {
    if (kind == MessageKind::Confirmation)
        return {u"OK"_s, u"Cancel"_s, u"Language"_s};
    return {u"OK"_s, u"Language"_s};
}

} // namespace

MessageDialog::MessageDialog(MessageKind kind, QObject* parent) :
    QObject(parent), m_kind(kind), m_buttonCount(int(defaultButtons(kind).size())), m_caption(defaultCaption(kind)),
    m_texts(defaultButtons(kind)) {}

void MessageDialog::setButtonCount(int count) {
    m_buttonCount = std::clamp(count, 1, int(m_texts.size()));
}

void MessageDialog::setText(int index, const QString& caption) {
    if (index >= 0 && index < m_texts.size())
        m_texts[index] = caption;
}

int MessageDialog::execute(QWidget* owner, const Message& message) {
    MessageWindow window(m_kind, message, owner);
    window.setObjectName(objectName());
    window.setWindowTitle(m_caption);
    for (int i = 0; i < m_buttonCount; ++i)
        window.addButton(m_texts[i], resultOf(m_kind, i));
    return window.exec();
}

MessageWindow::MessageWindow(MessageKind kind, const Message& message, QWidget* owner) :
    QDialog(owner), m_kind(kind), m_message(message), m_buttons(new QHBoxLayout) {
    auto* icon = new QLabel;
    const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    icon->setPixmap(style()->standardIcon(iconOf(kind)).pixmap(size, size));
    auto* text = new QLabel(readable(message.text));
    text->setObjectName(u"lbl_pesan"_s);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    // The shown text has places to break in it that nobody wants to copy.
    connect(new QShortcut(QKeySequence::Copy, this), &QShortcut::activated, this,
            [this] { QGuiApplication::clipboard()->setText(m_message.text); });
    text->setMinimumWidth(fontMetrics().averageCharWidth() * 48);

    auto* body = new QHBoxLayout;
    body->setSpacing(16);
    body->addWidget(icon, 0, Qt::AlignTop);
    body->addWidget(text, 1);
    m_buttons->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(20);
    layout->addLayout(body);
    layout->addLayout(m_buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void MessageWindow::addButton(const QString& caption, MessageResult result) {
    auto* button = new QPushButton(caption);
    button->setProperty(resultProperty, int(result));
    button->setDefault(result == MessageOk);
    button->setAutoDefault(true);
    m_buttons->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, result] { done(result); });
}

bool MessageWindow::press(int result) {
    for (auto* button : findChildren<QPushButton*>())
        if (button->property(resultProperty).toInt() == result) {
            button->click();
            return true;
        }
    return false;
}

void MessageWindow::reject() {
    if (!press(MessageCancel))
        press(MessageOk);
}
