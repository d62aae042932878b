#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

/// How a grid shows the values of a column.
enum class Show {
    Plain,  ///< as stored, numbers with a decimal comma
    Money,  ///< whole rupiah with points: ",0.;-,0."
    Factor, ///< grouped, up to two decimals, lined up at the comma
    Date,   ///< dd/MM/yyyy
    Moment, ///< dd/MM/yyyy HH:mm
    Mark,   ///< a check mark where the value is -1
    Tick,   ///< a mark that the user sets and clears, -1 and 0
};

/// What a screen says of one column when it sets up a grid. The language tables address its caption by the grid's name
/// with the field behind it.
struct ColumnPlan {
    QString field;
    QString caption;
    Show show = Show::Plain;
    bool hidden = false;
    QString band{};        ///< object name of the band above it, empty for none
    bool editable = false; ///< cells take text from the keyboard
};

/// What a screen says of one band: a heading over the columns that name it.
struct BandPlan {
    QString name;
    QString caption;
};

/// A heading over several columns of a grid.
class GridBand final : public QObject {
    Q_OBJECT

public:
    GridBand(const BandPlan& plan, QObject* parent);

    [[nodiscard]] const QString& caption() const { return m_caption; }
    void setCaption(const QString& caption);

Q_SIGNALS:
    void changed();

private:
    QString m_caption;
};

/// One column of a grid, a named object so that its caption can be replaced.
class GridColumn final : public QObject {
    Q_OBJECT

public:
    GridColumn(const ColumnPlan& plan, QObject* grid);

    [[nodiscard]] const QString& field() const { return m_plan.field; }
    [[nodiscard]] const QString& band() const { return m_plan.band; }
    [[nodiscard]] const QString& caption() const { return m_plan.caption; }
    [[nodiscard]] Show show() const { return m_plan.show; }
    [[nodiscard]] bool isHidden() const { return m_plan.hidden; }
    [[nodiscard]] bool isEditable() const { return m_plan.editable; }
    void setCaption(const QString& caption);

    /// The value as it stands in an open cell: numbers with a comma and without points.
    [[nodiscard]] QString editText(const QVariant& value) const;
    /// The value as the grid shows it.
    [[nodiscard]] QString displayText(const QVariant& value) const;
    /// A shown text with the blanks that make the column line up.
    [[nodiscard]] QString linedUp(const QString& text) const;

Q_SIGNALS:
    void changed();

private:
    ColumnPlan m_plan;
};
