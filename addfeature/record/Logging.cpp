#include "addfeature/record/Logging.h"

Q_LOGGING_CATEGORY(recordLog, "canvastoolstrip.record")
Q_LOGGING_CATEGORY(dialogLog, "canvastoolstrip.addfeature")
