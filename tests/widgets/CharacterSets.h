#pragma once

// The character sets the main window gives its fields, shared with the gallery.
#include <QString>

struct ControlSets {
    // The yen sign and the zero width space are members on purpose.
    static QString community() {
        return QStringLiteral(",./:;@[\\\u00A5]^_0123456789abcdefghijklmn\u200B"
                              "opqrstuvwxyzABCDEFGHIJKLMN\u200BOPQRSTUVWXYZ");
    }
    static QString communityInvalid() { return QStringLiteral("!\"#%%&'()*+-<=>?`{|}~"); }
    static QString hexadecimal() { return QStringLiteral("0123456789ABCDEFabcdef"); }
    static constexpr int communityMaxLength = 32;
};
