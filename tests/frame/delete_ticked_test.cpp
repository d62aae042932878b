#include "base/delete_ticked.h"
#include "base/look_up.h"
#include "tests/frame/fixture.h"
#include "toolkit/data/mem_table.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const base::MessageText really{u"frm_uji"_s, 2, u"Hapus %1?"_s};
const base::MessageText needed{u"frm_uji"_s, 3, u"Masih digunakan."_s};

TEST(DeleteTicked, LeavesWhatIsNeededAndGoesOnBehindARefusedStatement) {
    SmallCompany company;
    company.database.run(u"insert into cabang values (7, 'Kosong'), (8, 'Lain')"_s);
    data::MemTable list({{.name = u"pilih"_s, .type = data::FieldType::Integer}, {.name = u"id"_s}});
    list.open();
    for (const auto& [id, pilih] : {std::pair{1, -1}, {7, -1}, {8, 0}}) {
        list.append();
        list.setValue(u"id", id);
        list.setValue(u"pilih", pilih);
        list.post();
    }
    QWidget screen;
    screen.setWindowTitle(u"Cabang"_s);
    QStringList told;
    base::Deletion deletion{.question = really,
                            .questionDetail = u"cabang"_s,
                            .isNeeded =
                                [&] {
                                    const QString users =
                                        u"select count(*) from emp where cab_id_auto="_s + list.text(u"id");
                                    return base::countOf(company.services.session.ADOConn, users) > 0;
                                },
                            .stillNeeded = &needed,
                            .action = u"Hapus"_s,
                            .what = [&] { return list.text(u"id"); },
                            .statements =
                                [&] {
                                    const QString key = u" where cab_id_auto="_s + list.text(u"id");
                                    return QStringList{u"delete from tidak_ada"_s + key, u"delete from cabang"_s + key};
                                },
                            .giveUp = [&](const std::exception&) { told << u"refused"_s; },
                            .refresh = [&] { told << u"shown"_s; }};
    EXPECT_EQ(messageDuring([&] { base::deleteTicked(list, company.services, screen, deletion); }).text, needed.text);
    EXPECT_EQ(told.join(u' ').toStdString(), "refused shown");
    EXPECT_EQ(company.database.rows(u"select cab_id_auto from cabang order by 1"_s).join(u' ').toStdString(), "1 3 8");
    EXPECT_EQ(company.database.rows(u"select log_note from user_log"_s).join(u' ').toStdString(), "Cabang - Hapus [7]");
    for (list.last(); !list.isEmpty();)
        list.remove();
    EXPECT_EQ(messageDuring([&] { base::deleteTicked(list, company.services, screen, deletion); }).text, QString());
}

} // namespace
