#pragma once

#include "toolkit/data/data_set.h"

#include <QStringList>

#include <gtest/gtest.h>

/// The records that show up, values parted by a blank, records by " | ", "NULL" for NULL; the current one in brackets.
[[nodiscard]] std::string listing(const data::DataSet& set);
/// The same one by one, without brackets.
[[nodiscard]] QStringList rowsOf(const data::DataSet& set);

/// Table in memory with the integer fields named.
[[nodiscard]] std::vector<data::Field> integerFields(const QStringList& names);

/// Appends and posts one record, values in field order.
void add(data::DataSet& set, const QVariantList& values);
