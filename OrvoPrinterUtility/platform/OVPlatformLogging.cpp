#include "OVPlatformLogging.h"

Q_LOGGING_CATEGORY(orvoPlatform, "orvo.platform", QtWarningMsg)
