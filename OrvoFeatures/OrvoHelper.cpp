#include "OrvoHelper.h"

#include <QStringList>

#include <algorithm>
#include <limits>

QString OrvoHelper::deleteInvalidCharactersFromString(const QString &string,
                                                      const QString &characters) {
    if (string.isNull() || characters.isNull()) {
        return string;
    }
    QString result = string;
    qsizetype i = 0;
    while (i < result.size()) {
        const QChar c = result.at(i);
        if (characters.contains(c)) {
            ++i;
        } else {
            // Removing every occurrence at once moves the next character into
            // position i, so i stays where it is.
            result = deleteCharFromString(result, c);
        }
    }
    return result;
}

QString OrvoHelper::deleteCharFromString(const QString &string, QChar charToDelete) {
    if (string.isNull()) {
        return string;
    }
    QString result = string;
    result.remove(charToDelete, Qt::CaseSensitive);
    return result;
}

bool OrvoHelper::isValidString(const QString &string, const QString &characters) {
    return string.isNull() || deleteInvalidCharactersFromString(string, characters) == string;
}

QString OrvoHelper::stringByRemovingInvalidCharacters(const QString &string,
                                                      const QString &characters) {
    const QString filtered = deleteInvalidCharactersFromString(string, characters);
    return filtered.isNull() ? QStringLiteral("") : filtered;
}

bool OrvoHelper::hasMultipleDecimalSeperator(const QString &string) {
    return !string.isNull() && string.split(QLatin1Char('.')).size() > 2;
}

bool OrvoHelper::isValidFloatFormat(const QString &string) {
    const QChar point('.');
    const QChar comma(',');
    if (string.isNull() || (!string.contains(point) && !string.contains(comma))) {
        return true;
    }
    const QStringList pieces = string.split(string.contains(point) ? point : comma);
    return pieces.size() == 2 && !pieces.at(1).isEmpty();
}

int OrvoHelper::intValue(const QString &string) {
    qsizetype i = 0;
    while (i < string.size() && string.at(i).isSpace()) {
        ++i;
    }
    bool negative = false;
    if (i < string.size() && (string.at(i) == u'-' || string.at(i) == u'+')) {
        negative = string.at(i) == u'-';
        ++i;
    }
    constexpr qint64 limit = qint64(std::numeric_limits<int>::max()) + 1;
    qint64 magnitude = 0;
    for (; i < string.size() && string.at(i) >= u'0' && string.at(i) <= u'9'; ++i) {
        magnitude = std::min(limit, magnitude * 10 + (string.at(i).unicode() - u'0'));
    }
    const qint64 value = negative ? -magnitude : magnitude;
    return int(std::clamp<qint64>(value, std::numeric_limits<int>::min(),
                                  std::numeric_limits<int>::max()));
}
