#pragma once

#include <QString>
#include <QVariant>

#include <memory>

// Accepts or refuses each partial edit of a text field by a set of allowed
// characters, optionally as a number held to the range 90..340 while typing.
class OVRestrictedStringFormatter {
public:
    static constexpr int numericPartialMinimum = 90;
    static constexpr int numericPartialMaximum = 340;

    static std::unique_ptr<OVRestrictedStringFormatter>
    initWithValidCharacters(const QString &validCharacters);
    // Part of the fixed interface; nothing in the utility calls the
    // invalid-set maker, stringForObjectValue or getObjectValue.
    // The invalid set is kept and handed back but never filters anything.
    static std::unique_ptr<OVRestrictedStringFormatter>
    initWithInvalidCharacters(const QString &invalidCharacters);

    void setNumeric() { m_numeric = true; }

    QString validCharacters() const { return m_validCharacters; }
    void setValidCharacters(const QString &characters) { m_validCharacters = characters; }
    QString invalidCharacters() const { return m_invalidCharacters; }
    void setInvalidCharacters(const QString &characters) { m_invalidCharacters = characters; }

    // A number's decimal text; null for anything else.
    static QString stringForObjectValue(const QVariant &objectValue);
    // Always succeeds; leaves `objectValue` untouched outside numeric mode.
    bool getObjectValue(QVariant *objectValue, const QString &forString,
                        QString *errorDescription) const;
    // false refuses the edit; `newEditingString`, when not null, then replaces
    // the field's text, otherwise the field keeps its previous text.
    bool isPartialStringValid(const QString &partialString, QString *newEditingString,
                              QString *errorDescription) const;

private:
    OVRestrictedStringFormatter() = default;

    QString m_validCharacters;
    QString m_invalidCharacters;
    bool m_numeric = false;
};
