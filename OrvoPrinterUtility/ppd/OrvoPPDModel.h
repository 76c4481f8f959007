#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

// What the reader takes from the text before it fills the PPD structure:
// groups in order, each with its options in the order they were read.
struct OrvoPPDModel {
    // Marks a choice that has no code (the one added to "PageRegion").
    static constexpr char16_t emptyCode[] = u"__EMPTY__";

    struct Choice {
        QString key;
        QString text;
        QString code;
    };
    struct Option {
        std::optional<QString> text;
        std::optional<QString> defaultChoice;
        QList<Choice> choices;
    };
    struct Group {
        QStringList keys; // option keywords, repeated when the text repeats them
        QHash<QString, Option> options;
    };

    QStringList groupNames; // "General" first; repeated names stay repeated
    QHash<QString, Group> groups;
};
