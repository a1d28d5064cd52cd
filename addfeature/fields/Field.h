#pragma once

#include "addfeature/record/DialogDoor.h"

#include <QString>

#include <array>

class QGridLayout;
class QLabel;
class QWidget;

/// When a change is sent to the canvas. What is not sent travels with the next record.
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

/// One entry of the record and the control that sets it. The derived classes are the kinds of
/// controls, each with everything that describes it.
class Field {
public:
    /// What every field states.
    struct Details {
        const char* name;  ///< of the member that points to it, and of the object
        Caption caption;
        QString key;       ///< in the record
        const char* slot;  ///< SLOT() of the dialog that its signal is connected to
        Sends sends;
        Message message = Message::Record;
        /// What can be typed into a line edit, as a regular expression; null: whatever the host
        /// lets the user type.
        const char* pattern = nullptr;
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

    /// Enables the control with its labels.
    void setRowEnabled(bool enabled);
    /// Adds label, control and unit label as a row of three columns.
    void addRow(QGridLayout* grid);

    QLabel* label() const { return m_label; }          ///< null without a visible label
    QLabel* unitLabel() const { return m_unitLabel; }  ///< null for what has no unit

protected:
    /// `control` is the derived object, not owned, which is given its name; `page` is its parent.
    Field(DialogDoor& door, QObject* control, QWidget* page, const Details& details);

    /// Stores the control's state, or refuses it, and sends.
    virtual void take() = 0;

    /// Called last in a constructor: building a field sends nothing.
    void connectSignal(const char* signal);
    void addUnitLabel();
    void store(const QString& value);
    void store(int value);

    DialogDoor& m_door;
    const Details m_details;

private:
    QWidget* widget() const;
    std::array<QWidget*, 3> parts() const;
    QLabel* createLabel(const char* suffix) const;

    QObject* m_control;  // a widget, or a group of them
    QWidget* m_page;
    QLabel* m_label = nullptr;
    QLabel* m_unitLabel = nullptr;
};
