#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

/// The tables of the pages: what the user does, and what the canvas then gets.
namespace PageCases {

/// Record entries that are expected, each with its type.
using Entries = QVariantMap;

/// One row. Steps are written as
///   "name"        click the button or check box of that object name
///   "name=2"      set the combo box's index from code
///   "name:text"   replace the field's text by typing, then press Enter
///   "name~text"   set the field's text from code
///   "name<text"   set the field's text from code, then call its slot
/// and states as "shown name", "hidden name", "enabled name", "disabled name", "checked name".
struct Case {
    QString name;
    QStringList before;
    QString action;
    Entries entries;
    QList<int> codes = {};
    QStringList states = {};
    QString shown = {};      ///< the field's text afterwards; null: not looked at
    QStringList boxes = {};  ///< "title|text"; "*" for a box of the host's
    bool metric = false;
};

/// Adds the columns and rows; `run` takes the row that is current. Entries that the row does not
/// name must stay as they were.
void addRows(const QList<Case>& cases);
void run();

/// Fails where a key is missing or too much, or a value or its type is another one.
void compare(const QVariantMap& actual, const Entries& expected);

/// The entries that a new dialog's record holds; building it sends nothing.
void compareStart(const Entries& entries, bool metric = false);

/// A connection made by name, with the signatures as SIGNAL() and SLOT() write them.
struct Connection {
    const char* sender;
    const char* signal;
    const char* slot;
};
void compareConnections(const QList<Connection>& connections);

/// A field for a length: its bound is 50000 or 10000 mil.
struct LengthField {
    QString field;
    QString key;
    QStringList before;
    int bound;
    QList<int> codesWhenAccepted;
    QList<int> codesWhenRefused;
};
/// Rows for each field: at, inside and outside its bounds, and texts that are no number; in both
/// units.
QList<Case> lengthCases(const QList<LengthField>& fields);

/// The text of the box that refuses a length, and of the one that refuses a coordinate.
QString lengthBox(int bound);
QString coordinateBox(int bound);

/// Tries to reach a greyed item by mouse, keyboard, wheel and typing ahead.
struct GreyedItems {
    QString combo;
    QStringList before;
    int lastFree;  ///< those after it are greyed
    int count;
};
void addGreyedRows(const QList<GreyedItems>& rows);
void tryToReachGreyedItem();

/// A refusal leads to one box whichever way the field is left.
struct Refusal {
    QString field;
    QStringList before;
    QString typed;
    QString shown;
    QString neighbour;  ///< a control to click on
};
void addRefusalRows(const QList<Refusal>& rows);
void refuseOnce();

/// The texts of the fields, switched ten times, are the same again; nothing is sent or stored.
/// `fields` are steps "name~text", `units` the labels "name=mil|my".
void switchUnitTenTimes(const QStringList& before, const QStringList& fields,
                        const QStringList& units);

/// In another language every text of `page` is another one, and no index, item state, entry of the
/// record or message has changed.
void retranslate(const QString& page, const QStringList& before);

}  // namespace PageCases
