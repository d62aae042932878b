#pragma once

#include <QString>

#include <stdexcept>

namespace data {

/// A use of a data set that it cannot carry out: no such field, a value that does not convert, a write outside the
/// edit state. What the server refuses is a db::Fault.
class Fault final : public std::runtime_error {
public:
    explicit Fault(const QString& message) : std::runtime_error(message.toStdString()) {}
};

} // namespace data
