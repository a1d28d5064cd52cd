#pragma once

#include <QString>

#include <string>

class FeatureRecord;
class QObject;

/// What a page sees of the dialog that it stands in, and all that it sees.
class PageHost {
public:
    /// The rows above the page that a line kind shows and hides.
    enum class CommonRow { Attributes, Values, Fill, Polarity, Mirror, Rotation };

    virtual ~PageHost() = default;

    virtual FeatureRecord& record() = 0;

    /// True: lengths are typed in micrometres (the slot length in millimetres); false: in mil
    /// (inch).
    virtual bool isMetric() const = 0;

    /// The host widget that holds the toolbar; context of the host's unit functions.
    virtual void* ownerContext() const = 0;
    virtual const std::string& job() const = 0;
    virtual const std::string& step() const = 0;

    /// Sends the whole record (code 50), after a check of the symbol that may refuse to.
    virtual void sendRecord() = 0;
    /// Sends the whole record as a change of direction (code 52), unchecked.
    virtual void sendDirection() = 0;

    // The checks report a refusal to the user in exactly one box before they return false.

    /// A number from 0 to `boundInMil`; metric text is divided by 25.4 before it is compared.
    virtual bool checkLength(const QString& text, double boundInMil) = 0;
    /// A coordinate in the user's unit, at most 100000 mil or 2540000 micrometres either way.
    virtual bool checkCoordinate(double value) = 0;
    /// A plain number without a unit.
    virtual bool checkNumber(double value, double minimum, double maximum) = 0;

    /// Shows the common controls again and tells the canvas the state of the attributes. False when
    /// a receiver of that has deleted the dialog, and the caller with it.
    virtual bool restoreCommonRows() = 0;
    virtual void setRowVisible(CommonRow row, bool visible) = 0;

    /// The object whose named slots the controls of a page are connected to.
    virtual QObject* slotOwner() = 0;
};
