#include "OVCliLogging.h"

Q_LOGGING_CATEGORY(orvoCli, "orvo.cli", QtWarningMsg)
