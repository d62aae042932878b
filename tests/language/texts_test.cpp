// Every text that a person can see has its row in both languages.

#include "frame/base/fr_browse_emp.h"
#include "frame/base/fr_userlog.h"
#include "frame/window/fr_menu.h"
#include "frame/window/fr_warning.h"
#include "register/fr_hitung_gaji.h"
#include "register/reports/captions.h"
#include "tests/support/test_database.h"
#include "toolkit/report/fr_preview.h"
#include "toolkit/ui/input_dialog.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QTabWidget>
#include <gtest/gtest.h>

namespace {

/// A text of the program and the key of its row.
struct Shown {
    QString form;
    QString component;
    int no_index;
    QString text;
};
using Texts = std::vector<Shown>;

bool hasLetter(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

class Collector final {
public:
    explicit Collector(Texts& texts) : m_texts(texts) {}

    void form(const QWidget& form) {
        m_form = form.objectName();
        add(m_form, -1, form.windowTitle());
        for (const QObject* child : form.findChildren<QObject*>())
            if (!child->objectName().startsWith(QLatin1String("qt_")))
                component(*child);
    }
    void add(const QString& name, int no_index, const QString& text) {
        if (hasLetter(text))
            m_texts.push_back({m_form, name, no_index, text});
    }

private:
    template <typename Dialog>
    void dialog(const Dialog& dialog) {
        add(dialog.objectName(), -1, dialog.caption());
        for (int i = 0; i < dialog.texts().size(); ++i)
            add(dialog.objectName(), i, dialog.texts()[i]);
    }

    void component(const QObject& object) {
        const QString& name = object.objectName();
        if (const auto* column = qobject_cast<const GridColumn*>(&object))
            add(name, -1, column->caption());
        else if (const auto* band = qobject_cast<const GridBand*>(&object))
            add(name, -1, band->caption());
        else if (const auto* label = qobject_cast<const QLabel*>(&object))
            add(name, -1, label->text());
        else if (const auto* button = qobject_cast<const QAbstractButton*>(&object))
            add(name, -1, button->text()), add(name, 0, button->toolTip());
        else if (const auto* group = qobject_cast<const QGroupBox*>(&object))
            add(name, -1, group->title());
        else if (const auto* action = qobject_cast<const QAction*>(&object))
            add(name, -1, action->text());
        else if (const auto* menu = qobject_cast<const QMenu*>(&object))
            add(name, -1, menu->title());
        else if (const auto* named = qobject_cast<const NamedText*>(&object))
            add(name, -1, named->text());
        else if (const auto* message = qobject_cast<const MessageDialog*>(&object))
            dialog(*message);
        else if (const auto* input = qobject_cast<const InputDialog*>(&object))
            dialog(*input);
        else if (const auto* tabs = qobject_cast<const QTabWidget*>(&object))
            for (int i = 0; i < tabs->count(); ++i)
                add(name, i, tabs->tabText(i));
        else if (const auto* combo = qobject_cast<const QComboBox*>(&object); combo && !combo->inherits("LookupBox"))
            for (int i = 0; i < combo->count(); ++i)
                add(name, i, combo->itemText(i));
    }

    Texts& m_texts;
    QString m_form;
};

/// The texts as the program has them, on screens that no table has touched.
Texts textsOfProgram() {
    Texts texts;
    Collector collect(texts);
    frame::Services services(frame::systemClock(), nullptr);
    // Nothing listens there: the screens keep the texts that they were designed with.
    services.session.ADOConn_lang.configure(
        {.host = QStringLiteral("127.0.0.1"), .port = 1, .user = {}, .password = {}, .database = {}});
    collect.form(Tfrm_menu({}, frame::systemClock(), frame::systemUserSetting()));
    collect.form(Tfrm_warning(services.language));
    collect.form(Tfrm_userlog(services, {}, frame::payrollModule, nullptr));
    collect.form(Tfrm_browse_emp(services, {}, {}, nullptr));
    collect.form(Tfrm_isian_hitung_gaji(services, {}, nullptr));
    collect.form(Tfrm_preview(report::Document{}, nullptr));
    collect.form(Tfrm_hitung_gaji(services, nullptr));
    const report::Captions captions = payroll::defaultCaptions();
    for (auto caption = captions.byName().begin(); caption != captions.byName().end(); ++caption)
        collect.add(caption.key(), -1, caption.value());
    return texts;
}

QString keyOf(const QString& form, const QString& name, const QString& no_index) {
    return QStringList{form, name, no_index}.join(u'\t').toLower();
}

class LanguageTables : public testing::Test {
protected:
    static void SetUpTestSuite() {
        company::Options options;
        options.employees = 5;
        options.months = 1;
        options.lastMonth = QDate(2026, 10, 1);
        s_database = std::make_unique<TestDatabase>(options);
    }
    static void TearDownTestSuite() { s_database.reset(); }

    /// Indonesian and English text by key.
    static QHash<QString, QStringList> stored(const QString& sql) {
        QHash<QString, QStringList> rows;
        for (const QString& line : s_database->rowsApp(sql)) {
            const QStringList cells = line.split(u'\t');
            rows.insert(keyOf(cells[0], cells[1], cells[2]), cells.mid(3));
        }
        return rows;
    }

    static void compare(const Texts& texts, const QHash<QString, QStringList>& rows) {
        for (const Shown& shown : texts) {
            const QString key =
                QStringList{shown.form, shown.component, QString::number(shown.no_index), shown.text}.join(u'\t');
            const QStringList row = rows.value(keyOf(shown.form, shown.component, QString::number(shown.no_index)));
            ASSERT_TRUE(row.isEmpty() || row.size() == 2) << key.toStdString();
            if (row.isEmpty()) {
                ADD_FAILURE() << "no row: " << key.toStdString();
                continue;
            }
            EXPECT_EQ(row[0].toStdString(), shown.text.toStdString()) << key.toStdString();
            EXPECT_TRUE(hasLetter(row[1])) << "not translated: " << key.toStdString();
        }
    }

    inline static std::unique_ptr<TestDatabase> s_database;
};

} // namespace

TEST_F(LanguageTables, HoldEveryCaptionInBothLanguages) {
    const Texts texts = textsOfProgram();
    ASSERT_GT(texts.size(), 150u);
    compare(texts, stored(QStringLiteral("select com_form, com_name, no_index, indonesia, english from change_lang")));
}

TEST_F(LanguageTables, HoldEveryMessageInBothLanguages) {
    Texts texts;
    for (const frame::MessageText* message : frame::MessageText::all())
        texts.push_back({message->form(), message->id(), 0, message->text()});
    ASSERT_GE(texts.size(), 8u);
    compare(texts, stored(QStringLiteral("select com_form, message_id, 0, indonesia, english from tvk_message")));
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
