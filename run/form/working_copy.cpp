#include "run/form/working_copy.h"

#include "base/look_up.h"
#include "run/form/form_run_view.h"
#include "toolkit/db/transaction.h"
#include "toolkit/fault/drop_fault.h"

#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace run {

namespace {

const QString selectHeader = u"SELECT * , 0 as pilih FROM z_pay_process_m where process_id=:process_id"_s;

const QString selectLines =
    uR"(select d.*, e.pin, e.nik , concat(ifnull(e.first_name,''),' ',ifnull(e.last_name, '')) as nama
       from z_pay_process_d as d left join emp as e on d.emp_id_auto=e.emp_id_auto
       where d.process_id=:process_id order by d.no_urut)"_s;

const QString selectRows =
    uR"(select sd.*, c.com_kode, c.com_name, c.type, e.pin, e.nik , if(type=0, '(+)', '(-)') as jenis
       , concat(ifnull(e.first_name,''),' ',ifnull(e.last_name, '')) as nama
       from z_pay_process_sd as sd left join z_pay_com as c on sd.com_id=c.com_id
       left join emp as e on sd.emp_id_auto=e.emp_id_auto
       where sd.process_id=:process_id order by sd.no_urut, c.type, c.no_urut)"_s;

} // namespace

/// While one lives, the cursor runs over lines that nobody looks at: the screen is told nothing.
class WorkingCopy::Walk final {
public:
    explicit Walk(WorkingCopy& copy) : m_copy(copy), m_lines(copy.cds_d), m_rows(copy.cds_sd) { ++m_copy.m_walks; }
    ~Walk() { --m_copy.m_walks; }
    Walk(const Walk&) = delete;
    Walk& operator=(const Walk&) = delete;

private:
    WorkingCopy& m_copy;
    data::ViewsOff m_lines;
    data::ViewsOff m_rows;
};

WorkingCopy::WorkingCopy(db::Connection& main, Author author) :
    sql_m(main, selectHeader), sql_d(main, selectLines), sql_sd(main, selectRows),
    cds_m({&sql_m, u"z_pay_process_m"_s, {u"process_id"_s}, {u"pilih"_s}}),
    cds_d({&sql_d, u"z_pay_process_d"_s, {u"process_id"_s, u"no_urut"_s}, {u"pin"_s, u"nik"_s, u"nama"_s}}),
    cds_sd({&sql_sd,
            u"z_pay_process_sd"_s,
            {u"process_id"_s, u"no_urut"_s, u"no_urut_ref"_s},
            {u"com_kode"_s, u"com_name"_s, u"type"_s, u"pin"_s, u"nik"_s, u"jenis"_s, u"nama"_s}}),
    m_main(main), m_author(std::move(author)) {
    connectEvents();
}

void WorkingCopy::connectEvents() {
    cds_m.events.newRecord = [this] { cds_mNewRecord(); };
    cds_d.events.newRecord = [this] { cds_dNewRecord(); };
    cds_sd.events.newRecord = [this] { cds_sdNewRecord(); };
    // For the rows in their stored order the last one need not have the highest number.
    cds_d.events.afterOpen = [this] {
        m_nomor_rincian_terakhir = lastValue(cds_d, u"no_urut");
        segarkan_rincian();
    };
    cds_sd.events.afterOpen = [this] { m_nomor_baris_terakhir = lastValue(cds_sd, u"no_urut_ref"); };
    cds_d.events.beforeCancel = [this] { m_nomor_rincian_terakhir -= cds_d.state() == data::State::Insert ? 1 : 0; };
    cds_sd.events.beforeCancel = [this] { m_nomor_baris_terakhir -= cds_sd.state() == data::State::Insert ? 1 : 0; };
    cds_d.events.beforeDelete = [this] { cds_dBeforeDelete(); };
    cds_sd.events.beforeDelete = [this] { cds_sdBeforeDelete(); };
    cds_d.events.afterPost = [this] { segarkan_rincian(); };
    cds_d.events.afterScroll = [this] { segarkan_rincian(); };
    cds_d.events.afterCancel = [this] { segarkan_rincian(); };
}

int WorkingCopy::lastValue(const data::DataSet& set, QStringView field) {
    return set.isEmpty() ? 0 : data::integer32Of(set.valueAt(set.rowCount() - 1, set.fieldIndex(field)));
}

void WorkingCopy::cds_mNewRecord() {
    cds_m.setValue(u"process_id", base::nextKey(m_main, u"z_pay_process_m", u"process_id"));
    stamp();
}

void WorkingCopy::stamp() {
    cds_m.editValue(u"lastupdate_user", m_author.login_id);
    cds_m.editValue(u"lastupdate_date", m_author.now());
}

void WorkingCopy::cds_dNewRecord() {
    cds_d.setValue(u"no_urut", ++m_nomor_rincian_terakhir);
    cds_d.setValue(u"process_id", cds_m.value(u"process_id"));
}

void WorkingCopy::cds_sdNewRecord() {
    cds_sd.setValue(u"no_urut_ref", ++m_nomor_baris_terakhir);
    cds_sd.setValue(u"process_id", cds_m.value(u"process_id"));
    cds_sd.setValue(u"no_urut", cds_d.value(u"no_urut"));
    cds_sd.setValue(u"emp_id_auto", cds_d.value(u"emp_id_auto"));
}

void WorkingCopy::cds_dBeforeDelete() {
    for (cds_sd.last(); !cds_sd.isEmpty();)
        cds_sd.remove();
    if (cds_d.integer(u"no_urut") == m_nomor_rincian_terakhir)
        --m_nomor_rincian_terakhir;
}

void WorkingCopy::cds_sdBeforeDelete() {
    if (cds_sd.integer(u"no_urut_ref") == m_nomor_baris_terakhir)
        --m_nomor_baris_terakhir;
}

void WorkingCopy::filterRows() {
    const bool isLine = !cds_d.isNull(u"emp_id_auto");
    cds_sd.setFilter(u"no_urut"_s, isLine ? cds_d.value(u"no_urut") : QVariant(0));
}

void WorkingCopy::segarkan_rincian() {
    filterRows();
    if (m_walks == 0 && lineShown)
        lineShown();
}

void WorkingCopy::open(int process_id) {
    m_isNew = false;
    m_process_id = process_id;
    // Before the rows: a change between the two then counts as one made since.
    if (const std::optional<StoredRun> stored = readStoredRun(m_main, process_id))
        m_loaded = stored->content;
    load(process_id);
}

void WorkingCopy::load(const QVariant& process_id) {
    for (data::SqlQuery* sql : {&sql_m, &sql_d, &sql_sd})
        sql->setParameter(u"process_id"_s, process_id);
    const Walk walk(*this);
    cds_sd.clearFilter();
    cds_m.reopen();
    // The rows first: the first line that opens then finds its own.
    cds_sd.reopen();
    cds_d.reopen();
}

void WorkingCopy::openNew() {
    load(QVariant());
    cds_m.append();
    cds_d.append();
    cds_sd.append();
}

void WorkingCopy::editAll() {
    for (data::ClientDataSet* set : {&cds_m, &cds_d, &cds_sd})
        if (!set->isEmpty())
            set->edit();
}

void WorkingCopy::deleteAllLines() {
    const Walk walk(*this);
    for (cds_d.last(); !cds_d.isEmpty();)
        cds_d.remove();
}

void WorkingCopy::appendRun(const Run& run) {
    const Walk walk(*this);
    for (const Line& line : run.lines) {
        cds_d.append();
        cds_d.setValue(u"emp_id_auto", line.emp_id_auto);
        cds_d.setValue(u"pin", line.pin);
        cds_d.setValue(u"nik", line.nik);
        cds_d.setValue(u"nama", line.nama);
        cds_d.setValue(u"tot_payroll", 0);
        cds_d.post();
        for (const Row& row : line.rows) {
            cds_sd.append();
            cds_sd.setValue(u"com_id", row.com_id);
            cds_sd.setValue(u"com_kode", row.com_kode);
            cds_sd.setValue(u"com_name", row.com_name);
            cds_sd.setValue(u"subtot_payroll", row.subtot_payroll);
            cds_sd.setValue(u"type", row.type);
            cds_sd.setValue(u"jenis", row.jenis());
            cds_sd.setValue(u"jml_faktor", row.jml_faktor);
            cds_sd.setValue(u"kondisi", row.kondisi);
            cds_sd.post();
        }
    }
    cds_d.first();
}

std::vector<RemovedLine> WorkingCopy::hitung() {
    std::vector<RemovedLine> removed;
    {
        const Walk walk(*this);
        cds_sd.settle();
        cds_d.settle();
        const data::KeptPlace line(cds_d);
        const data::KeptPlace row(cds_sd);
        FormRunView view(*this);
        const double total = run::hitung(view, cds_m.real(u"round_value"));
        if (!cds_m.isEmpty()) {
            cds_m.editValue(u"tot_process", total);
            cds_m.post();
        }
        removed = hitung2(view);
        if (line.restore())
            row.restore();
    }
    if (lineShown)
        lineShown();
    return removed;
}

WorkingCopy::Sums WorkingCopy::sums() const {
    Sums sums;
    const int type = cds_sd.fieldIndex(u"type");
    const int amount = cds_sd.fieldIndex(u"subtot_payroll");
    for (int row = 0; row < cds_sd.rowCount(); ++row) {
        const double rupiah = std::nearbyint(data::realOf(cds_sd.valueAt(row, amount)));
        (data::integerOf(cds_sd.valueAt(row, type)) == 0 ? sums.tunjangan : sums.potongan) += rupiah;
    }
    return sums;
}

Saved WorkingCopy::save() {
    try {
        db::inTransaction(m_main, [this] { send(); });
    } catch (const Refusal& refusal) {
        return refusal.outcome;
    } catch (const db::CommitUnknownFault&) {
        const std::optional<bool> stored = isStored();
        if (!stored)
            return Saved::NotKnown;
        if (!*stored)
            throw;
    }
    for (data::ClientDataSet* set : {&cds_m, &cds_d, &cds_sd})
        set->forgetChanges();
    m_isNew = false;
    m_loaded = m_sent;
    return Saved::Stored;
}

void WorkingCopy::send() {
    const bool isEmptied = makeRoom();
    for (data::ClientDataSet* set : {&cds_m, &cds_d, &cds_sd})
        isEmptied ? set->sendEverything() : set->sendChanges();
    if (const std::optional<StoredRun> stored = readStoredRun(m_main, m_process_id))
        m_sent = stored->content;
}

bool WorkingCopy::makeRoom() {
    if (m_isNew)
        m_process_id = cds_m.integer32(u"process_id");
    const std::optional<StoredRun> stored = lockStoredRun(m_main, m_process_id);
    // After a save whose end is not known the tables may hold that save.
    const bool isReplaced = stored && (stored->content == m_sent || stored->content == m_replaced);
    if (m_isNew && stored && !isReplaced) {
        takeNextNumber();
    } else if (!m_isNew && !isReplaced) {
        if (!stored)
            throw Refusal{Saved::Gone};
        if (stored->content == m_loaded)
            return false;
        m_foreign = *stored;
        throw Refusal{Saved::ChangedElsewhere};
    }
    deleteStoredRun(m_main, m_process_id);
    return true;
}

void WorkingCopy::takeNextNumber() {
    m_process_id = lockNextProcessId(m_main);
    for (data::ClientDataSet* set : {&cds_m, &cds_d, &cds_sd})
        set->setEverywhere(u"process_id", m_process_id);
}

std::optional<bool> WorkingCopy::isStored() {
    std::optional<StoredRun> stored;
    // The lock waits for the lost session, where the server is still busy with it.
    const bool isAnswered = fault::dropFault("pemeriksaan apakah perhitungan gaji tersimpan", [&] {
        const db::Transaction look(m_main);
        stored = lockStoredRun(m_main, m_process_id);
    });
    if (!isAnswered)
        return std::nullopt;
    return stored && stored->content == m_sent;
}

} // namespace run
