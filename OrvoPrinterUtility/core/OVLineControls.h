#pragma once

#include <QString>

// The Unicode characters that change how a line reads without being seen
// themselves: bidirectional embeddings, overrides, isolates and marks (a
// queue named "q", U+202E, "abc" reads "qcba"), the line and paragraph
// separators, and the byte order mark. Names come from print servers and
// printers that any user who may print can fill, so they are shown by their
// code rather than obeyed.
class OVLineControls {
public:
    OVLineControls() = delete;

    static bool isLineControl(char16_t c);
    // The character as its code, such as "\u202e".
    static QString code(char16_t c);
    // The text with every such character as its code.
    static QString shown(const QString &text);
};
