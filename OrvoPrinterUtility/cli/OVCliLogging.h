#pragma once

#include <QLoggingCategory>

// The command line's diagnostics, at the info level: hidden unless asked for
// (QT_LOGGING_RULES="orvo.cli.info=true"), so the program's own output
// stays as it is.
Q_DECLARE_LOGGING_CATEGORY(orvoCli)
