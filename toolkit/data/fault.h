#pragma once

#include "toolkit/fault/fault.h"

namespace data {

/// A use of a data set that it cannot carry out: no such field, a value that does not convert, a write outside the
/// edit state. What the server refuses is a db::Fault.
class Fault final : public fault::Fault {
public:
    explicit Fault(const QString& message) : fault::Fault(message.toStdString()) {}
};

} // namespace data
