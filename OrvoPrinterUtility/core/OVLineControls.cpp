#include "OVLineControls.h"

bool OVLineControls::isLineControl(char16_t c) {
    return c == 0x061c                     // Arabic letter mark
           || c == 0x200e || c == 0x200f   // left-to-right and right-to-left marks
           || (c >= 0x2028 && c <= 0x202e) // separators, embeddings and overrides
           || (c >= 0x2066 && c <= 0x2069) // isolates
           || c == 0xfeff;                 // byte order mark
}

QString OVLineControls::code(char16_t c) {
    return QStringLiteral("\\u%1").arg(int(c), 4, 16, QChar('0'));
}

QString OVLineControls::shown(const QString &text) {
    QString shown;
    shown.reserve(text.size());
    for (const QChar c : text)
        shown += isLineControl(c.unicode()) ? code(c.unicode()) : QString(c);
    return shown;
}
