#pragma once

#include <QLoggingCategory>

/// "canvastoolstrip.record": the record's entries, at each send.
Q_DECLARE_LOGGING_CATEGORY(recordLog)
/// "canvastoolstrip.addfeature": what is typed as a symbol.
Q_DECLARE_LOGGING_CATEGORY(dialogLog)
