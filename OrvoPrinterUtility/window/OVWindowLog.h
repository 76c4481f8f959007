#pragma once

#include <QLoggingCategory>

// Diagnostics of the window layer ("orvo.window"); off unless enabled with
// QT_LOGGING_RULES="orvo.window.debug=true".
Q_DECLARE_LOGGING_CATEGORY(orvoWindow)
