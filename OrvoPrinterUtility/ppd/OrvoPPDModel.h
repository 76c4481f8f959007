#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

// What the reader takes from the text before it fills the PPD structure:
// groups in order, each with its options in the order they were read. The
// strings are views into the text, which outlives the model.
struct OrvoPPDModel {
    // Marks a choice that has no code (the one added to "PageRegion").
    static constexpr char16_t emptyCode[] = u"__EMPTY__";

    struct Choice {
        QStringView key;
        QStringView text;
        QStringView code;
    };
    struct Option {
        std::optional<QStringView> text;
        std::optional<QStringView> defaultChoice;
        QList<Choice> choices;
    };
    struct Group {
        QStringList keys; // option keywords, repeated when the text repeats them
        QHash<QString, Option> options;
    };

    QStringList groupNames; // "General" first; repeated names stay repeated
    QHash<QString, Group> groups;
};
