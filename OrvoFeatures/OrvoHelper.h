#pragma once

#include <QString>

// String checks shared by the input controls. A character set is a string;
// a character belongs to it when some UTF-16 code unit of the set equals it
// (no case folding, no normalization).
class OrvoHelper {
public:
    // Every character not in `characters` removed; null for a null string,
    // the string unchanged for a null set.
    static QString deleteInvalidCharactersFromString(const QString &string,
                                                     const QString &characters);
    // Every occurrence of `charToDelete` removed; null for a null string.
    static QString deleteCharFromString(const QString &string, QChar charToDelete);
    static bool isValidString(const QString &string, const QString &characters);
    // Like deleteInvalidCharactersFromString, but never null.
    static QString stringByRemovingInvalidCharacters(const QString &string,
                                                     const QString &characters);
    // Part of the fixed interface; nothing in the utility calls these two.
    static bool hasMultipleDecimalSeperator(const QString &string);
    static bool isValidFloatFormat(const QString &string);
    // The leading decimal integer, read as a text control reads its integer
    // value: leading white space skipped, optional sign, clamped to 32 bits,
    // 0 when there are no leading digits.
    static int intValue(const QString &string);
};
