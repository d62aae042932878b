#include "register/reports/payroll_reports.h"

#include "register/reports/designs.h"
#include "register/reports/statements.h"
#include "toolkit/fault/drop_fault.h"

using namespace Qt::StringLiterals;

namespace payroll {

namespace {

constexpr char16_t shortDate[] = u"dd/MM/yyyy";
constexpr char16_t printTime[] = u"dd/MM/yyyy HH:mm:ss";

} // namespace

PayrollReports::PayrollReports(base::Session& session, const report::Captions& captions) :
    m_session(session), m_captions(captions), sql_detail(session.ADOConn), sql_subdetail(session.ADOConn),
    sql_subdetail2(session.ADOConn) {}

// The root of the departments stands for the company.
base::paper::Heading PayrollReports::readHeading(const Request& request) {
    data::SqlQuery& sql = m_session.sql_temp;
    sql.openSql(u"select * from dept where dept_id_auto=1 "_s);
    return {.ppl_nama_persh = sql.text(u"dept_name"),
            .ppl_tgl_aw = request.dtp_tgl_aw.toString(shortDate),
            .ppl_tgl_ak = request.dtp_tgl_akh.toString(shortDate),
            .ppl_user = m_session.login_id,
            .tgl_cetak = m_session.clock().toString(printTime)};
}

// The wide rows of these statements outgrow the server's usual limit for temporary tables in memory after a few
// thousand lines; on disk they take twice as long. A server that refuses only loses the time.
void PayrollReports::allowLargeTemporaryTables() {
    fault::dropFault("batas tabel sementara di server", [this] {
        m_session.ADOConn.execute(u"SET SESSION tmp_table_size=268435456, max_heap_table_size=268435456"_s);
    });
}

void PayrollReports::openAll(const Request& request) {
    allowLargeTemporaryTables();
    sql_detail.openSql(sqlDetail(request.filter));
    sql_subdetail.openSql(sqlSubdetail(request.filter, ComponentType::Earning));
    sql_subdetail2.openSql(sqlSubdetail(request.filter, ComponentType::Deduction));
}

std::optional<report::Document> PayrollReports::RekapPenggajian(const Request& request) {
    sql_detail.openSql(sqlDetail(request.filter));
    if (sql_detail.isEmpty())
        return std::nullopt;
    const base::paper::Heading heading = readHeading(request);
    return compose(recapDesign({sql_detail, sql_subdetail, sql_subdetail2}, {m_captions, heading}));
}

report::Document PayrollReports::RincianPenggajian(const Request& request) {
    openAll(request);
    const base::paper::Heading heading = readHeading(request);
    return compose(detailDesign({sql_detail, sql_subdetail, sql_subdetail2}, {m_captions, heading}));
}

report::Document PayrollReports::SlipGaji(const Request& request) {
    openAll(request);
    const base::paper::Heading heading = readHeading(request);
    return compose(slipDesign({sql_detail, sql_subdetail, sql_subdetail2}, {m_captions, heading}));
}

} // namespace payroll
