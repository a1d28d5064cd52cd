#pragma once

#include "addfeature/record/DialogDoor.h"

#include <QString>
#include <QStringList>

#include <array>
#include <vector>

class QGridLayout;
class QLabel;
class QWidget;

/// When a change is sent to the canvas. What is not sent travels with the next record that another
/// control sends.
enum class Sends { Never, WhenAccepted, Always };

/// How it is sent: as the record, which the symbol's check may hold back, or as a change of
/// direction.
enum class Message { Record, Direction };

/// What names the control for the user.
struct Caption {
    enum class Kind {
        Label,   ///< a label in front of the control
        Own,     ///< the control's own text
        Spoken,  ///< nothing that is always visible: the accessible name and the tool tip
        None,    ///< its parts have captions of their own
    };
    Kind kind;
    const char* text;  ///< marked for translation in the context "AddFeature"

    static constexpr Caption label(const char* text) { return {Kind::Label, text}; }
    static constexpr Caption own(const char* text) { return {Kind::Own, text}; }
    static constexpr Caption spoken(const char* text) { return {Kind::Spoken, text}; }
    static constexpr Caption none() { return {Kind::None, nullptr}; }

    QString translated() const;
};

/// What is accepted, bounds included. Of a length: in mil.
struct Bounds {
    double minimum;
    double maximum;
};

/// One entry of the record and the control that sets it. The derived classes are the kinds of
/// controls, each with everything that describes it.
class Field {
public:
    /// What a field states in its declaration: the first five always, in this order; what only some
    /// have, by name.
    struct Details {
        const char* name;  ///< of the member that points to it, and of the object
        Caption caption;
        QString key;       ///< in the record; a button has none
        const char* slot;  ///< SLOT() of the dialog that its signal is connected to
        Sends sends;

        /// Its changes are sent as a change of direction.
        Details& asDirection() { return m_message = Message::Direction, *this; }
        /// What can be typed, as a regular expression, case sensitive; otherwise what the host
        /// allows.
        Details& pattern(const char* expression) { return m_pattern = expression, *this; }
        Details& within(double minimum, double maximum)
        {
            return m_bounds = {minimum, maximum}, *this;
        }
        /// It can be used while `choice`, declared before, has one of the values.
        Details& enabledBy(Field* choice, const QStringList& values)
        {
            return m_choice = choice, m_enabling = values, *this;
        }
        /// It can be chosen elsewhere, but not typed in.
        Details& readOnly() { return m_isReadOnly = true, *this; }

        Message m_message = Message::Record;
        const char* m_pattern = nullptr;
        Bounds m_bounds = {0, 0};
        Field* m_choice = nullptr;
        QStringList m_enabling = {};
        bool m_isReadOnly = false;
    };

    virtual ~Field() = default;
    Field(const Field&) = delete;
    Field& operator=(const Field&) = delete;

    /// Applies the control's current state.
    void change();
    /// Sends a change, if this field sends its changes.
    void send(bool isAccepted = true);

    /// Sets its texts in the current language. Changes no value and sends nothing.
    virtual void retranslate();
    /// Shows a length and its label in the other system of units. Changes no value of the record.
    virtual void changeUnit(bool /*isMetric*/) {}

    /// Whether it is a choice, and has that value.
    virtual bool is(const QString& /*value*/) const { return false; }
    /// Enables the fields that this choice enables, with their labels, and disables the others.
    void enableOthers();
    /// From now on `other` can be used only while this choice has one of the values.
    void enable(Field* other, const QStringList& values);

    /// Adds label, control and unit label as a row of three columns.
    void addRow(QGridLayout* grid);

    QLabel* label() const { return m_label; }          ///< null without a visible label
    QLabel* unitLabel() const { return m_unitLabel; }  ///< null for what has no unit

protected:
    /// `control` is the derived object, not owned, which is given its name; `page` is its parent.
    Field(DialogDoor& door, QObject* control, QWidget* page, const Details& details);

    /// Stores the control's state, or refuses it, and sends.
    virtual void take() = 0;

    /// Called last in a constructor: connects the control, since building a field sends nothing,
    /// and enables it if its choice does.
    void complete(const char* signal);
    void addUnitLabel();
    void store(const QString& value);
    void store(int value);

    DialogDoor& m_door;
    const Details m_details;

private:
    struct Enabled {
        Field* field;
        QStringList values;
    };

    QWidget* widget() const;
    std::array<QWidget*, 3> parts() const;
    QLabel* createLabel(const char* suffix) const;
    void setRowEnabled(bool enabled);
    bool isOneOf(const QStringList& values) const;

    QObject* m_control;  // a widget, or a group of them
    QWidget* m_page;
    QLabel* m_label = nullptr;
    QLabel* m_unitLabel = nullptr;
    std::vector<Enabled> m_others;
};
