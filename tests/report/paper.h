#pragma once

#include "toolkit/data/mem_table.h"
#include "toolkit/report/document.h"

#include <QList>

#include <memory>
#include <string>

/// The document as somebody reads it: "page N of M", then the texts that stand on one line parted by " | ", lines
/// within a text parted by "/", hidden marks nowhere; a frame as "[]". With a band, only what the bands of that name
/// printed.
[[nodiscard]] std::string paper(const report::Document& document, const QString& band = {});

/// An open table with text fields of these names, and its rows.
[[nodiscard]] std::unique_ptr<data::MemTable> table(const QStringList& fields, const QList<QStringList>& rows);

/// Runs another program and gives what it writes; the test fails where it does not end well.
[[nodiscard]] QString outputOf(const QString& program, const QStringList& arguments);
