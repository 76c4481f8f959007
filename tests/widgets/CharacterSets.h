#pragma once

// The character sets the main window gives its fields, as the tests and the
// gallery use them.
#include <QString>

namespace ControlSets {

// Accepted in an SNMP community name; the yen sign and the zero width space
// are members on purpose.
inline QString community() {
    return QStringLiteral(",./:;@[\\") + QChar(0x00A5) +
           QStringLiteral("]^_0123456789abcdefghijklmn") + QChar(0x200B) +
           QStringLiteral("opqrstuvwxyzABCDEFGHIJKLMN") + QChar(0x200B) +
           QStringLiteral("OPQRSTUVWXYZ");
}

// Refused in an SNMP community name, with an alert.
inline QString communityInvalid() {
    return QStringLiteral("!\"#%%&'()*+-<=>?`{|}~");
}

inline QString hexadecimal() {
    return QStringLiteral("0123456789ABCDEFabcdef");
}

constexpr int communityMaxLength = 32;

} // namespace ControlSets
