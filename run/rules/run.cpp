#include "run/rules/run.h"

using namespace Qt::StringLiterals;

namespace run {

QString Row::jenis() const {
    return type == 0 ? u"(+)"_s : u"(-)"_s;
}

void Run::deleteRow(Line& line, std::size_t row) {
    const auto place = line.rows.begin() + qsizetype(row);
    if (place->no_urut_ref == nomor_baris_terakhir)
        --nomor_baris_terakhir;
    line.rows.erase(place);
}

void Run::emptyLine(Line& line) {
    while (!line.rows.empty())
        deleteRow(line, line.rows.size() - 1);
    if (line.no_urut == nomor_rincian_terakhir)
        --nomor_rincian_terakhir;
}

void Run::clear() {
    for (; !lines.empty(); lines.pop_back())
        emptyLine(lines.back());
}

} // namespace run
