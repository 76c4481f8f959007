#include "OVCoreLogging.h"

Q_LOGGING_CATEGORY(orvoCore, "orvo.core", QtWarningMsg)
