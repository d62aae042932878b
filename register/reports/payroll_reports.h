#pragma once

#include "base/paper/heading.h"
#include "base/session.h"

#include <optional>

namespace payroll {

/// Which runs are printed, and the period that stands on the papers.
struct Request {
    QString filter; ///< processFilter()
    QDate dtp_tgl_aw;
    QDate dtp_tgl_akh;
};

/// The three papers of the register, over any number of runs at once: recap, detail and pay slips. Each reads its data
/// anew and gives a finished document. Throws db::Fault.
class PayrollReports final {
public:
    /// Both must outlive this object.
    PayrollReports(base::Session& session, const report::Captions& captions);

    /// None where the runs have no employees.
    [[nodiscard]] std::optional<report::Document> RekapPenggajian(const Request& request);
    [[nodiscard]] report::Document RincianPenggajian(const Request& request);
    [[nodiscard]] report::Document SlipGaji(const Request& request);

private:
    [[nodiscard]] base::paper::Heading readHeading(const Request& request);
    void allowLargeTemporaryTables();
    void openAll(const Request& request);

    base::Session& m_session;
    const report::Captions& m_captions;
    data::SqlQuery sql_detail;
    data::SqlQuery sql_subdetail;
    data::SqlQuery sql_subdetail2;
};

} // namespace payroll
