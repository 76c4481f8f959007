#pragma once

#include <QLoggingCategory>

// The platform layer's diagnostics, at the info level: hidden unless asked for
// (QT_LOGGING_RULES="orvo.platform.info=true"), so the program's own output
// stays as it is.
Q_DECLARE_LOGGING_CATEGORY(orvoPlatform)
