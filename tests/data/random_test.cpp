#include "tests/data/listing.h"
#include "toolkit/data/mem_table.h"

#include <algorithm>
#include <optional>
#include <random>

namespace {

using namespace Qt::StringLiterals;

/// The plain counterpart: a vector that is read through from end to end for everything.
struct PlainModel {
    struct Row {
        int a;
        int b;
        int serial;
    };

    [[nodiscard]] std::vector<Row> shown() const {
        std::vector<Row> result;
        for (const Row& row : rows)
            if (!filter || row.a == *filter)
                result.push_back(row);
        return result;
    }
    [[nodiscard]] int find(std::optional<int> a, std::optional<int> b) const {
        const std::vector<Row> all = shown();
        const auto found =
            std::ranges::find_if(all, [&](const Row& row) { return (!a || row.a == *a) && (!b || row.b == *b); });
        return found == all.end() ? -1 : int(found - all.begin());
    }

    std::vector<Row> rows;
    std::optional<int> filter;
};

/// Does what a grid does: keeps the list it shows by the signals alone.
class Mirror {
public:
    explicit Mirror(data::DataSet& set) : m_set(set) {
        using data::DataSet;
        QObject::connect(&set, &DataSet::reset, [this] {
            shown = rowsOf(m_set);
            ++resets;
        });
        QObject::connect(&set, &DataSet::rowAboutToBeInserted, [this](int row) { EXPECT_LE(row, int(shown.size())); });
        QObject::connect(&set, &DataSet::rowInserted, [this](int row) { shown.insert(row, rowsOf(m_set)[row]); });
        QObject::connect(&set, &DataSet::rowAboutToBeRemoved,
                         [this](int) { EXPECT_EQ(m_set.rowCount(), int(shown.size())); });
        QObject::connect(&set, &DataSet::rowRemoved, [this](int row) { shown.removeAt(row); });
        QObject::connect(&set, &DataSet::recordChanged, [this](int row) { shown[row] = rowsOf(m_set)[row]; });
    }

    QStringList shown;
    int resets = 0;

private:
    data::DataSet& m_set;
};

class Comparison {
public:
    explicit Comparison(unsigned seed) : m_random(seed) { m_set.open(); }

    void step() {
        const std::vector<PlainModel::Row> shown = m_model.shown();
        const int row = shown.empty() ? -1 : pick(int(shown.size()));
        const int a = pick(5), b = pick(5), kind = pick(9);
        m_set.goToRow(std::max(row, 0));
        if (kind == 0)
            filter();
        else if (kind <= 2 && row >= 0)
            change(shown[size_t(row)].serial, a, b);
        else if (kind == 3 && row >= 0) {
            std::erase_if(m_model.rows, [&](const auto& one) { return one.serial == shown[size_t(row)].serial; });
            m_set.remove();
        } else if (kind == 4)
            takeBack();
        else {
            m_model.rows.push_back({a, b, m_next++});
            add(m_set, {a, b});
        }
    }

    void compare() {
        QStringList expected;
        for (const PlainModel::Row& row : m_model.shown())
            expected << u"%1 %2"_s.arg(row.a).arg(row.b);
        ASSERT_EQ(rowsOf(m_set), expected);
        ASSERT_EQ(m_mirror.shown, expected);
        const int a = pick(5), b = pick(5);
        ASSERT_EQ(m_set.rowOf({{u"b", b}}), m_model.find({}, b));
        ASSERT_EQ(m_set.rowOf({{u"a", a}}), m_model.find(a, {}));
        ASSERT_EQ(m_set.rowOf({{u"a", a}, {u"b", b}}), m_model.find(a, b));
    }

private:
    int pick(int below) { return std::uniform_int_distribution(0, below - 1)(m_random); }

    void change(int serial, int a, int b) {
        for (PlainModel::Row& row : m_model.rows)
            if (row.serial == serial)
                row = {a, b, serial};
        m_set.editValue(u"a", a);
        m_set.setValue(u"b", b);
        m_set.post();
    }
    /// What nobody has changed is not kept.
    void takeBack() {
        if (pick(2) == 0)
            m_set.edit();
        else
            m_set.append();
        m_set.settle();
    }
    void filter() {
        if (pick(4) == 0) {
            m_model.filter.reset();
            m_set.clearFilter();
        } else {
            m_model.filter = pick(5);
            m_set.setFilter(u"a"_s, *m_model.filter);
        }
    }

    std::mt19937 m_random;
    int m_next = 0;
    PlainModel m_model;
    data::MemTable m_set{integerFields({u"a"_s, u"b"_s})};
    Mirror m_mirror{m_set};
};

} // namespace

TEST(RandomChanges, GiveAGridAndAFindWhatAPlainScanGives) {
    const unsigned first = std::random_device{}();
    for (unsigned seed = first; seed != first + 30; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Comparison comparison(seed);
        for (int i = 0; i < 300 && !testing::Test::HasFailure(); ++i) {
            comparison.step();
            comparison.compare();
        }
    }
}

TEST(Views, AreRefreshedOnceAfterAWalkWhoseDeletionsSkipTheRecordThatMovesUp) {
    data::MemTable set(integerFields({u"no"_s, u"nr"_s}));
    set.open();
    Mirror mirror(set);
    int moves = 0;
    QObject::connect(&set, &data::DataSet::cursorMoved, [&moves] { ++moves; });
    {
        const data::ViewsOff outer(set);
        for (int no = 0; no < 10; ++no)
            add(set, {no, no});
        {
            const data::ViewsOff inner(set);
            for (set.first(); !set.isEof(); set.next())
                set.remove();
        }
        EXPECT_EQ(mirror.resets, 0);
    }
    EXPECT_EQ(std::pair(mirror.resets, moves), std::pair(1, 0));
    EXPECT_EQ(mirror.shown, QStringList({u"1 1"_s, u"3 3"_s, u"5 5"_s, u"7 7"_s, u"9 9"_s}));
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
