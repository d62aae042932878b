#include "tests/data/listing.h"
#include "toolkit/data/mem_table.h"

#include <optional>
#include <random>

namespace {

using namespace Qt::StringLiterals;

/// The plain counterpart: a vector that is read through from end to end for everything.
class PlainModel {
public:
    struct Row {
        int a;
        int b;
        int serial;
    };

    void append(int a, int b) { m_rows.push_back({a, b, m_next++}); }
    [[nodiscard]] std::vector<Row> shown() const {
        std::vector<Row> rows;
        for (const Row& row : m_rows)
            if (!filter || row.a == *filter)
                rows.push_back(row);
        if (ordered)
            std::ranges::stable_sort(rows, {}, &Row::b);
        return rows;
    }
    void change(int serial, int a, int b) {
        for (Row& row : m_rows)
            if (row.serial == serial)
                row = {a, b, serial};
    }
    void remove(int serial) {
        std::erase_if(m_rows, [serial](const Row& row) { return row.serial == serial; });
    }
    [[nodiscard]] int find(std::optional<int> a, std::optional<int> b) const {
        const std::vector<Row> rows = shown();
        for (size_t i = 0; i < rows.size(); ++i)
            if ((!a || rows[i].a == *a) && (!b || rows[i].b == *b))
                return int(i);
        return -1;
    }

    std::optional<int> filter;
    bool ordered = false;

private:
    std::vector<Row> m_rows;
    int m_next = 0;
};

class Comparison {
public:
    explicit Comparison(unsigned seed) : m_random(seed), m_set(integerFields({u"a"_s, u"b"_s})) { m_set.open(); }

    void step() {
        const std::vector<PlainModel::Row> shown = m_model.shown();
        const int row = shown.empty() ? -1 : pick(int(shown.size()));
        switch (pick(8)) {
        case 0:
            return filterOrOrder();
        case 1:
        case 2:
            if (row >= 0)
                change(row, shown[size_t(row)].serial);
            return;
        case 3:
            if (row >= 0)
                remove(row, shown[size_t(row)].serial);
            return;
        default:
            append();
        }
    }

    void compare() {
        std::string expected;
        for (const PlainModel::Row& row : m_model.shown())
            expected += std::to_string(row.a) + ' ' + std::to_string(row.b) + ' ';
        std::string actual;
        for (int row = 0; row < m_set.rowCount(); ++row)
            actual += data::textOf(m_set.valueAt(row, 0)).toStdString() + ' ' +
                      data::textOf(m_set.valueAt(row, 1)).toStdString() + ' ';
        ASSERT_EQ(actual, expected);
        for (int b = 0; b < 5; ++b) {
            const int a = pick(5);
            ASSERT_EQ(m_set.rowOf({{u"b", b}}), m_model.find({}, b));
            ASSERT_EQ(m_set.rowOf({{u"a", a}}), m_model.find(a, {}));
            ASSERT_EQ(m_set.rowOf({{u"a", a}, {u"b", b}}), m_model.find(a, b));
        }
    }

private:
    int pick(int below) { return std::uniform_int_distribution(0, below - 1)(m_random); }

    void append() {
        const int a = pick(5);
        const int b = pick(5);
        m_model.append(a, b);
        add(m_set, {a, b});
    }
    void change(int row, int serial) {
        const int a = pick(5);
        const int b = pick(5);
        m_model.change(serial, a, b);
        m_set.goToRow(row);
        m_set.editValue(u"a", a);
        m_set.setValue(u"b", b);
        m_set.post();
    }
    void remove(int row, int serial) {
        m_model.remove(serial);
        m_set.goToRow(row);
        m_set.remove();
    }
    void filterOrOrder() {
        switch (pick(4)) {
        case 0:
            m_model.filter.reset();
            m_set.clearFilter();
            break;
        case 1:
            m_model.ordered = !m_model.ordered;
            m_set.setOrder(m_model.ordered ? QStringList{u"b"_s} : QStringList());
            break;
        default:
            m_model.filter = pick(5);
            m_set.setFilter(u"a"_s, *m_model.filter);
        }
    }

    std::mt19937 m_random;
    PlainModel m_model;
    data::MemTable m_set;
};

} // namespace

TEST(RandomChanges, GiveTheSameListAndTheSameFindsAsAPlainScan) {
    const unsigned first = std::random_device{}();
    for (unsigned seed = first; seed != first + 30; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Comparison comparison(seed);
        for (int i = 0; i < 300; ++i) {
            comparison.step();
            comparison.compare();
            if (testing::Test::HasFatalFailure())
                return;
        }
    }
}
