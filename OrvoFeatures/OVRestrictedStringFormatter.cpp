#include "OVRestrictedStringFormatter.h"

#include "OrvoHelper.h"

#include <QLocale>

#include <algorithm>

std::unique_ptr<OVRestrictedStringFormatter>
OVRestrictedStringFormatter::initWithValidCharacters(const QString &validCharacters) {
    std::unique_ptr<OVRestrictedStringFormatter> formatter(new OVRestrictedStringFormatter);
    formatter->m_validCharacters = validCharacters;
    return formatter;
}

std::unique_ptr<OVRestrictedStringFormatter>
OVRestrictedStringFormatter::initWithInvalidCharacters(const QString &invalidCharacters) {
    std::unique_ptr<OVRestrictedStringFormatter> formatter(new OVRestrictedStringFormatter);
    formatter->m_invalidCharacters = invalidCharacters;
    return formatter;
}

QString OVRestrictedStringFormatter::stringForObjectValue(const QVariant &objectValue) {
    switch (objectValue.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
        return QString::number(objectValue.toLongLong());
    case QMetaType::ULongLong:
        return QString::number(objectValue.toULongLong());
    case QMetaType::Float:
    case QMetaType::Double:
        return QString::number(objectValue.toDouble(), 'g', QLocale::FloatingPointShortest);
    default:
        return {};
    }
}

bool OVRestrictedStringFormatter::getObjectValue(QVariant *objectValue, const QString &forString,
                                                 QString * /*errorDescription*/) const {
    if (objectValue == nullptr) {
        return true;
    }
    if (forString.isNull()) {
        *objectValue = QStringLiteral("");
    } else if (m_numeric) {
        *objectValue = OrvoHelper::isValidString(forString, m_validCharacters)
                           ? QVariant(OrvoHelper::intValue(forString))
                           : QVariant(forString);
    }
    return true;
}

bool OVRestrictedStringFormatter::isPartialStringValid(const QString &partialString,
                                                       QString *newEditingString,
                                                       QString * /*errorDescription*/) const {
    if (newEditingString != nullptr) {
        *newEditingString = QString();
    }
    if (partialString.isEmpty()) {
        return true;
    }
    if (m_numeric) {
        const int value = OrvoHelper::intValue(partialString);
        const int snapped = std::clamp(value, numericPartialMinimum, numericPartialMaximum);
        if (snapped != value) {
            if (newEditingString != nullptr) {
                *newEditingString = QString::asprintf("%d", snapped);
            }
            return false;
        }
    }
    return OrvoHelper::isValidString(partialString, m_validCharacters);
}
