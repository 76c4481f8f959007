#pragma once

// The character sets the main window gives its fields, shared with the gallery.
#include <QString>

struct ControlSets {
    // The yen sign and the zero width space are members on purpose.
    static QString community() {
        return QStringLiteral(",./:;@[\\") + QChar(0x00A5) +
               QStringLiteral("]^_0123456789abcdefghijklmn") + QChar(0x200B) +
               QStringLiteral("opqrstuvwxyzABCDEFGHIJKLMN") + QChar(0x200B) +
               QStringLiteral("OPQRSTUVWXYZ");
    }
    static QString communityInvalid() { return QStringLiteral("!\"#%%&'()*+-<=>?`{|}~"); }
    static QString hexadecimal() { return QStringLiteral("0123456789ABCDEFabcdef"); }
    static constexpr int communityMaxLength = 32;
};
