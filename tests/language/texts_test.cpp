// Every text that a person can see has its row in both languages.

#include "base/fr_browse_emp.h"
#include "base/notices.h"
#include "frame/fr_menu.h"
#include "frame/fr_userlog.h"
#include "frame/fr_warning.h"
#include "register/fr_hitung_gaji.h"
#include "register/reports/captions.h"
#include "run/form/left_out_list.h"
#include "structure/fr_komponen.h"
#include "tests/support/test_database.h"
#include "toolkit/report/fr_preview.h"
#include "toolkit/ui/input_dialog.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDirIterator>
#include <QRegularExpression>
#include <QTabWidget>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Each text of the program behind the key of its row: form, component and index, parted by tabs, in small letters.
using Texts = std::vector<std::pair<QString, QString>>;

bool hasLetter(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

class Collector final {
public:
    /// Fills in the texts and the classes of the forms that have them.
    Collector(Texts& texts, QStringList& classes) : m_texts(texts), m_classes(classes) {}

    void form(const QWidget& form) {
        m_form = form.objectName();
        m_classes << QString::fromLatin1(form.metaObject()->className());
        add(m_form, -1, form.windowTitle());
        for (const QObject* child : form.findChildren<QObject*>())
            if (!child->objectName().startsWith("qt_"_L1))
                component(*child);
    }
    void add(const QString& name, int no_index, const QString& text) {
        if (hasLetter(text))
            m_texts.emplace_back(u"%1\t%2\t%3"_s.arg(m_form, name).arg(no_index).toLower(), text);
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
        // Labels, buttons and actions have the one, groups and menus the other; what an edit holds is no caption.
        if (!object.property("readOnly").isValid())
            add(name, -1, object.property("text").toString() + object.property("title").toString());
        if (const auto* column = qobject_cast<const GridColumn*>(&object))
            add(name, -1, column->caption());
        else if (const auto* band = qobject_cast<const GridBand*>(&object))
            add(name, -1, band->caption());
        else if (const auto* named = qobject_cast<const NamedText*>(&object))
            add(name, -1, named->text());
        else if (const auto* button = qobject_cast<const QAbstractButton*>(&object))
            add(name, 0, button->toolTip());
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
    QStringList& m_classes;
    QString m_form;
};

/// The texts as the program has them, on screens that no table has touched.
Texts textsOfProgram(QStringList& classes) {
    Texts texts;
    Collector collect(texts, classes);
    base::Services services(base::systemClock(), nullptr);
    // Nothing listens there: the screens keep the texts that they were designed with.
    services.session.ADOConn_lang.configure(
        {.host = u"127.0.0.1"_s, .port = 1, .user = {}, .password = {}, .database = {}});
    collect.form(Tfrm_menu({}, base::systemClock(), base::systemUserSetting()));
    collect.form(Tfrm_warning(services.language));
    collect.form(Tfrm_userlog(services, {}, base::payrollModule, nullptr));
    collect.form(Tfrm_browse_emp(services, {}, {}, nullptr));
    collect.form(Tfrm_isian_hitung_gaji(services, {}, nullptr));
    collect.form(Tfrm_preview(report::Document{}, nullptr));
    collect.form(Tfrm_daftar(services, base::Notices::emptyList(), nullptr));
    collect.form(Tfrm_daftar(services, leftOutList({}), nullptr));
    collect.form(Tfrm_komponen(services, nullptr));
    collect.form(Tfrm_isian_komponen(services, {}, nullptr));
    // The texts of its papers belong to it.
    collect.form(Tfrm_hitung_gaji(services, nullptr));
    const report::Captions captions = payroll::defaultCaptions();
    for (auto caption = captions.byName().begin(); caption != captions.byName().end(); ++caption)
        collect.add(caption.key(), -1, caption.value());
    return texts;
}

/// The program's own files of these names: each with its text behind its path.
std::vector<std::pair<QString, QString>> sourcesOfProgram(const QStringList& names) {
    std::vector<std::pair<QString, QString>> sources;
    const QDir root(QStringLiteral(ORVANE_SOURCES));
    for (QDirIterator file(root.path(), names, QDir::Files, QDirIterator::Subdirectories); file.hasNext();) {
        QFile source(file.next());
        const QString path = root.relativeFilePath(source.fileName());
        if (!path.contains(QRegularExpression(u"^(build|tests)/"_s)) && source.open(QIODevice::ReadOnly))
            sources.emplace_back(path, QString::fromUtf8(source.readAll()));
    }
    return sources;
}

/// What the pattern captures in them, each with its file.
std::vector<std::pair<QString, QString>> inSources(const QStringList& names, const QString& pattern) {
    std::vector<std::pair<QString, QString>> found;
    const QRegularExpression wanted(pattern);
    for (const auto& [path, text] : sourcesOfProgram(names))
        for (const QRegularExpressionMatch& match : wanted.globalMatch(text))
            found.emplace_back(match.captured(1), path);
    return found;
}

/// What the guards of the program name as given up: the literals stand in the sources.
Texts droppedThings() {
    Texts things;
    for (const auto& [name, file] :
         inSources({u"*.cpp"_s, u"*.h"_s}, uR"re(fault::(?:dropFault|reportDroppedFault)\((?:\s*"([^"]*)")?)re"_s)) {
        EXPECT_FALSE(name.isEmpty()) << "not named by a literal: " << file.toStdString();
        things.emplace_back(u"frm_pemberitahuan\t%1\t-1"_s.arg(name).toLower(), name);
    }
    return things;
}

/// The messages as they are declared, their literals put together.
Texts messagesOfProgram() {
    Texts messages;
    const QRegularExpression declared(uR"re(const (?:base::)?MessageText \w+\{)re"_s);
    const QRegularExpression whole(declared.pattern() +
                                   uR"re(\s*(?:formName|u"(\w+)"_s),\s*(\d+),\s*((?:u?"[^"]*"(?:_s)?\s*)+)\})re"_s);
    const QRegularExpression formName(uR"re(formName = u"(\w+)"_s)re"_s);
    const QRegularExpression literal(uR"re("([^"]*)")re"_s);
    for (const auto& [path, source] : sourcesOfProgram({u"*.cpp"_s, u"*.h"_s})) {
        const std::size_t before = messages.size();
        for (const QRegularExpressionMatch& found : whole.globalMatch(source)) {
            const QString form = found.hasCaptured(1) ? found.captured(1) : formName.match(source).captured(1);
            QString text;
            for (const QRegularExpressionMatch& part : literal.globalMatch(found.captured(3)))
                text += part.captured(1);
            messages.emplace_back(u"%1\tmessage_id[%2]\t0"_s.arg(form, found.captured(2)).toLower(), text);
        }
        EXPECT_EQ(qsizetype(messages.size() - before), source.count(declared)) << path.toStdString();
    }
    return messages;
}

/// The statement gives the key in three columns, then the Indonesian and the English text.
void expectRows(const Texts& texts, const QString& statement) {
    static TestDatabase database(company::Options{.employees = 5, .months = 1, .lastMonth = QDate(2026, 10, 1)});
    QHash<QString, QStringList> rows;
    for (const QString& line : database.rowsApp(statement))
        rows.insert(line.section(u'\t', 0, 2).toLower(), line.split(u'\t').mid(3));
    for (const auto& [key, text] : texts) {
        const QStringList row = rows.value(key, {u"no row"_s, {}});
        EXPECT_EQ(row[0].toStdString(), text.toStdString()) << key.toStdString();
        EXPECT_TRUE(hasLetter(row[1])) << "not translated: " << key.toStdString();
    }
}

} // namespace

TEST(LanguageTables, HoldEveryCaptionInBothLanguages) {
    QStringList classes;
    const Texts texts = textsOfProgram(classes);
    const auto forms = inSources({u"fr_*.ui"_s}, u"<class>(frm_\\w+)</class>"_s);
    ASSERT_GT(forms.size(), 5u);
    for (const auto& [form, file] : forms)
        EXPECT_TRUE(classes.contains(u'T' + form)) << "not collected above: " << file.toStdString();
    expectRows(texts, u"select com_form, com_name, no_index, indonesia, ifnull(english, '') from change_lang"_s);
}

TEST(LanguageTables, HoldEveryThingThatIsGivenUp) {
    const Texts things = droppedThings();
    ASSERT_GT(things.size(), 20u);
    expectRows(things, u"select com_form, com_name, no_index, indonesia, ifnull(english, '') from change_lang"_s);
}

TEST(LanguageTables, HoldEveryMessageInBothLanguages) {
    const Texts texts = messagesOfProgram();
    ASSERT_GE(texts.size(), 8u);
    expectRows(texts, u"select com_form, message_id, 0, indonesia, ifnull(english, '') from tvk_message"_s);
}
