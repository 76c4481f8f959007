#include "OrvoPPDLogging.h"

Q_LOGGING_CATEGORY(orvoPPD, "orvo.ppd", QtWarningMsg)
