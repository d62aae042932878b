#include "tests/data/listing.h"
#include "toolkit/data/mem_table.h"

#include <QVariantList>

namespace {

using namespace Qt::StringLiterals;

/// Does what a grid does: keeps the list it shows by the signals alone.
class Mirror {
public:
    explicit Mirror(data::DataSet& set) : m_set(set) {
        QObject::connect(&set, &data::DataSet::reset, [this] { readAll(); });
        QObject::connect(&set, &data::DataSet::opened, [this] { readAll(); });
        QObject::connect(&set, &data::DataSet::closed, [this] { readAll(); });
        QObject::connect(&set, &data::DataSet::rowAboutToBeInserted,
                         [this](int row) { expectCount(row, m_shown.size()); });
        QObject::connect(&set, &data::DataSet::rowInserted, [this](int row) { m_shown.insert(row, read(row)); });
        QObject::connect(&set, &data::DataSet::rowAboutToBeRemoved,
                         [this](int) { expectCount(m_set.rowCount(), m_shown.size()); });
        QObject::connect(&set, &data::DataSet::rowRemoved, [this](int row) { m_shown.removeAt(row); });
        QObject::connect(&set, &data::DataSet::recordChanged, [this](int row) { m_shown[row] = read(row); });
        readAll();
    }

    int resets = 0;
    [[nodiscard]] bool agrees() const {
        QVariantList now;
        for (int row = 0; row < m_set.rowCount(); ++row)
            now << read(row);
        return now == m_shown;
    }

private:
    [[nodiscard]] QVariant read(int row) const { return m_set.valueAt(row, 0); }
    void readAll() {
        ++resets;
        m_shown.clear();
        for (int row = 0; row < m_set.rowCount(); ++row)
            m_shown << read(row);
    }
    static void expectCount(qsizetype announced, qsizetype shown) { EXPECT_EQ(announced, shown); }

    data::DataSet& m_set;
    QVariantList m_shown;
};

} // namespace

TEST(Views, CanFollowEveryChangeBySignals) {
    data::MemTable set(integerFields({u"no"_s}));
    Mirror mirror(set);
    const std::pair<const char*, std::function<void()>> steps[] = {
        {"open", [&] { set.open(); }},
        {"append", [&] { set.append(); }},
        {"drop", [&] { set.cancel(); }},
        {"fill", [&] { add(set, {5}); }},
        {"second", [&] { add(set, {3}); }},
        {"edit", [&] { set.editValue(u"no", 4); }},
        {"undo", [&] { set.cancel(); }},
        {"order", [&] { set.setOrder({u"no"_s}); }},
        {"sorted in", [&] { add(set, {4}); }},
        {"moved by its value",
         [&] {
             set.editValue(u"no", 1);
             set.post();
         }},
        {"filter", [&] { set.setFilter(u"no"_s, 3); }},
        {"filtered out", [&] { add(set, {9}); }},
        {"deleted", [&] { set.remove(); }},
        {"unfiltered", [&] { set.clearFilter(); }},
        {"closed", [&] { set.close(); }},
    };
    for (const auto& [name, step] : steps) {
        step();
        EXPECT_TRUE(mirror.agrees()) << name;
    }
}

TEST(Views, AreRefreshedOnceAfterAWalk) {
    data::MemTable set(integerFields({u"no"_s}));
    set.open();
    Mirror mirror(set);
    int moves = 0;
    QObject::connect(&set, &data::DataSet::cursorMoved, [&moves] { ++moves; });
    mirror.resets = 0;
    {
        const data::ViewsOff outer(set);
        for (int no = 0; no < 10; ++no)
            add(set, {no});
        {
            const data::ViewsOff inner(set);
            for (set.first(); !set.isEof(); set.next())
                set.remove();
        }
        EXPECT_EQ(mirror.resets, 0);
    }
    EXPECT_EQ(mirror.resets, 1);
    EXPECT_EQ(moves, 0);
    EXPECT_TRUE(mirror.agrees());
    { const data::ViewsOff idle(set); }
    EXPECT_EQ(mirror.resets, 1);
}

TEST(Views, HandOverWhatIsTypedBeforeAMoveOrAPost) {
    data::MemTable set(integerFields({u"no"_s}));
    set.open();
    add(set, {1});
    int typed = 0;
    QObject::connect(&set, &data::DataSet::flushRequested, [&] {
        if (typed)
            set.setValue(u"no", std::exchange(typed, 0));
    });
    set.edit();
    typed = 7;
    set.first();
    EXPECT_EQ(listing(set), "[7]");
    set.edit();
    typed = 8;
    set.post();
    EXPECT_EQ(listing(set), "[8]");
}
