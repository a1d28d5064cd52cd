#pragma once

#include "addfeature/FeatureType.h"

#include <string>

class FeatureRecord;
class RefusalGuard;

/// What the symbol entry sees of the dialog.
class SymbolHost {
public:
    virtual ~SymbolHost() = default;

    virtual FeatureRecord& record() = 0;
    virtual RefusalGuard& refusals() = 0;
    virtual void* ownerContext() const = 0;
    virtual const std::string& job() const = 0;
    virtual FeatureType featureType() const = 0;
    /// The rotation spin box, in degrees.
    virtual int rotation() const = 0;
    /// Whether Add Feature is the active tool of the toolbar.
    virtual bool isToolActive() const = 0;
    virtual void sendRecord() = 0;
};
