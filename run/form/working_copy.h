#pragma once

#include "run/form/stored_run.h"
#include "run/rules/totals.h"
#include "toolkit/data/client_data_set.h"

#include <functional>

namespace run {

/// Where the working copies take what is not in the rows: who works on the run, and the clock.
struct Author {
    QString login_id;
    std::function<QDateTime()> now;
};

/// What became of a save.
enum class Saved {
    Stored,
    Gone,             ///< the run was deleted elsewhere; nothing is stored
    ChangedElsewhere, ///< since it was opened; nothing is stored
    NotKnown,         ///< the connection was lost at the very end, and nobody answers
};

/// A run on the run form: the working copies of its header, lines and rows, tied together as the form needs them. The
/// rows always show the current line only; deleting a line deletes its rows; new lines and rows number themselves.
class WorkingCopy final {
public:
    WorkingCopy(db::Connection& main, Author author);

    data::SqlQuery sql_m;
    data::SqlQuery sql_d;
    data::SqlQuery sql_sd;
    data::ClientDataSet cds_m;
    data::ClientDataSet cds_d;
    data::ClientDataSet cds_sd;

    /// Called when another line has become current or its rows have changed, except during walks over all lines.
    std::function<void()> lineShown;

    /// Loads the run; no rows for a number that no run has.
    void open(int process_id);
    /// Begins a new run: a header, and a line and a row that stay behind only if somebody fills them in.
    void openNew();
    void editAll();
    /// Puts who and when into the header.
    void stamp();

    void deleteAllLines();
    /// Adds the lines and rows of a computation behind what is there and goes to the first line.
    void appendRun(const Run& run);

    /// Rounds, totals and cleans all lines, and puts the total into the header. The current line and row stay so, or
    /// what took their place. Gives the lines that went.
    std::vector<RemovedLine> hitung();

    /// Earnings and deductions of the current line, each row rounded to whole rupiah.
    struct Sums {
        double tunjangan = 0;
        double potongan = 0;
    };
    [[nodiscard]] Sums sums() const;

    /// Writes header, lines and rows in one transaction. A new run whose number was taken meanwhile takes the next
    /// one, and nothing is left of what else stands under its number. What is refused or lost is thrown in the server's
    /// words; nothing is stored then, and all that the copies hold is saved by the next call.
    [[nodiscard]] Saved save();
    /// The change on account of which save() gave ChangedElsewhere.
    [[nodiscard]] const StoredRun& foreignChange() const { return m_foreign; }
    /// The next save replaces that change, whole.
    void replaceForeignChange() { m_replaced = m_foreign.content; }

private:
    class Walk;
    struct Refusal {
        Saved outcome;
    };

    void load(const QVariant& process_id);
    void send();
    /// True where the tables now hold nothing under the number, false where the changes alone are to be written.
    [[nodiscard]] bool makeRoom();
    void takeNextNumber();
    /// After a commit that was not answered; none where nobody answers now either.
    [[nodiscard]] std::optional<bool> isStored();
    void connectEvents();
    [[nodiscard]] static int lastValue(const data::DataSet& set, QStringView field);
    void cds_mNewRecord();
    void cds_dNewRecord();
    void cds_sdNewRecord();
    void cds_dBeforeDelete();
    void cds_sdBeforeDelete();
    void segarkan_rincian();
    void filterRows();

    db::Connection& m_main;
    const Author m_author;
    int m_process_id = 0;
    bool m_isNew = true;
    QString m_loaded;                 ///< content of the run as it was loaded
    StoredRun m_foreign;              ///< what another station made of it since
    QString m_replaced;               ///< content that the user agreed to replace
    QString m_sent;                   ///< content as the last save sent it
    int m_nomor_rincian_terakhir = 0; ///< last no_urut given in cds_d
    int m_nomor_baris_terakhir = 0;   ///< last no_urut_ref given in cds_sd
    int m_walks = 0;
};

} // namespace run
