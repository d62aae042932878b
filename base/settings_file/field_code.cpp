#include "base/settings_file/field_code.h"

#include <QByteArray>
#include <QStringDecoder>

#include <array>
#include <stdexcept>

namespace settings {

namespace {

constexpr QChar quote = u'"';
constexpr qsizetype markLength = 5;

using MarkPositions = std::array<qsizetype, markLength>;

// Positions count from 0. Whoever writes or reads the file shares these two lists and the alphabet.
constexpr MarkPositions firstMarkPositions{41, 7, 68, 22, 59};
constexpr MarkPositions secondMarkPositions{13, 70, 35, 2, 50};
constexpr QStringView markAlphabet = u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz!#$%&*+-=?@^_";
static_assert(markAlphabet.size() == 75);

// Put together at each use: a search through the program's file must not find a mark.
QString mark(const MarkPositions& positions) {
    QString symbols;
    for (const qsizetype position : positions)
        symbols += markAlphabet[position];
    return symbols;
}

QString bothMarks() {
    return mark(firstMarkPositions) + mark(secondMarkPositions);
}

bool isBlank(QChar c) {
    return c <= u' ';
}

/// Walks over a text field by field.
class FieldReader final {
public:
    FieldReader(QChar delimiter, QStringView text) : m_delimiter(delimiter), m_text(text) { skipBlanks(); }

    bool atEnd() const { return m_at >= m_text.size(); }

    QString takeField() { return m_text[m_at] == quote ? takeQuoted() : takePlain(); }

    /// True where the delimiter stands here, which promises one more field even at the end of the text.
    bool takeDelimiter() {
        skipBlanks();
        if (atEnd() || m_text[m_at] != m_delimiter)
            return false;
        ++m_at;
        skipBlanks();
        return true;
    }

private:
    void skipBlanks() {
        while (!atEnd() && isBlank(m_text[m_at]))
            ++m_at;
    }

    QString takeQuoted() {
        QString field;
        for (++m_at; !atEnd(); ++m_at) {
            if (m_text[m_at] == quote) {
                ++m_at;
                if (atEnd() || m_text[m_at] != quote)
                    break;
            }
            field += m_text[m_at];
        }
        return field;
    }

    QString takePlain() {
        const qsizetype start = m_at;
        while (!atEnd() && !isBlank(m_text[m_at]) && m_text[m_at] != m_delimiter)
            ++m_at;
        return m_text.sliced(start, m_at - start).toString();
    }

    QChar m_delimiter;
    QStringView m_text;
    qsizetype m_at = 0;
};

} // namespace

void SplitFields(QChar delimiter, const QString& text, QStringList* list) {
    if (list == nullptr)
        throw std::logic_error("Assertion failure (fr_menu)");
    list->clear();
    FieldReader reader(delimiter, text);
    while (!reader.atEnd()) {
        list->append(reader.takeField());
        if (reader.takeDelimiter() && reader.atEnd())
            list->append(QString());
    }
}

QString DecodeBase64(const QString& text) {
    const QByteArray encoded = text.toUtf8();
    const QByteArray bytes = QByteArray::fromBase64(encoded);
    // Only one spelling is written for each value; the decoder alone would skip what it does not know.
    if (bytes.toBase64() != encoded)
        return {};
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    const QString value = utf8(bytes);
    return utf8.hasError() ? QString() : value;
}

QString DecodeField(const QString& text) {
    const QString decoded = DecodeBase64(text);
    return decoded.endsWith(bothMarks()) ? decoded.chopped(2 * markLength) : foreignValue.toString();
}

QString EncodeField(const QString& value) {
    return QString::fromLatin1((value + bothMarks()).toUtf8().toBase64());
}

} // namespace settings
