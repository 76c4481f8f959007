#include "OVWindowLog.h"

Q_LOGGING_CATEGORY(orvoWindow, "orvo.window", QtInfoMsg)
