#pragma once

#include <QLoggingCategory>

// The PPD reader's diagnostics, at the info level: hidden unless asked for
// (QT_LOGGING_RULES="orvo.ppd.info=true"), so the program's own output
// stays as it is.
Q_DECLARE_LOGGING_CATEGORY(orvoPPD)
