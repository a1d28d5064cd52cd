#pragma once

#include "addfeature/record/FeatureType.h"

#include <QString>

#include <map>
#include <string>

class FeatureRecord;
class HostUnits;
class QObject;
class QWidget;
class RefusalGuard;
class ValueChecks;

/// All that fields, pages and rows see of the dialog they are in.
class DialogDoor {
public:
    virtual ~DialogDoor() = default;

    virtual FeatureRecord& record() = 0;
    virtual RefusalGuard& refusals() = 0;

    virtual const HostUnits& units() const = 0;
    virtual const ValueChecks& checks() const = 0;

    /// Holds the toolbar: parent of the host's windows and context of its functions. Not owned.
    virtual QWidget* hostWidget() const = 0;
    /// UTF-8, like the step.
    virtual const std::string& job() const = 0;
    virtual const std::string& step() const = 0;
    virtual FeatureType featureType() const = 0;
    /// The rotation spin box, in degrees.
    virtual int rotation() const = 0;
    /// Whether Add Feature is the active tool of the toolbar.
    virtual bool isToolActive() const = 0;

    // A receiver of what is sent may delete the dialog, and the caller with it.

    /// The whole record (code 50), unless the check of the symbol refuses it.
    virtual void sendRecord() = 0;
    /// The whole record as a change of direction (code 52), unchecked.
    virtual void sendDirection() = 0;
    /// The attributes by address (code 51); the canvas reads them during the call.
    virtual void sendAttributes(const std::map<std::string, std::string>& attributes) = 0;

    /// Shows the common controls again and tells the canvas the state of the attributes. False when
    /// a receiver of that has deleted the dialog, and the caller with it.
    virtual bool restoreCommonRows() = 0;
    /// Hides the attribute row and the polarity, which a slot does not have.
    virtual void hideAttributeRows() = 0;
    /// Hides mirror and rotation, which only pads and texts have.
    virtual void hidePlacementRows() = 0;

    // By the names that SIGNAL() and SLOT() give.

    /// Connects a control to the dialog's slot, or disconnects it.
    virtual void connectToSlot(QObject* sender, const char* signal, const char* slot) = 0;
    virtual void disconnectFromSlot(QObject* sender, const char* signal, const char* slot) = 0;
    /// Connects the dialog's signal to a window that the host supplies.
    virtual void connectSignal(const char* signal, QObject* receiver, const char* slot) = 0;
};
