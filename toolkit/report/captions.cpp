#include "toolkit/report/captions.h"

#include <stdexcept>

namespace report {

void Captions::replace(const QString& name, const QString& text) {
    const auto known = m_texts.find(name.toLower());
    if (known != m_texts.end())
        *known = text;
}

const QString& Captions::operator[](const QString& name) const {
    const auto known = m_texts.constFind(name);
    if (known == m_texts.constEnd())
        throw std::out_of_range("no caption " + name.toStdString());
    return *known;
}

} // namespace report
