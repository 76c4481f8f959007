#include "OrvoSNMPHelper.h"

#include "OrvoPPD_Interface.h"
#include "OrvoSettingsKeywords.h"

#include <QStringDecoder>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <limits>
#include <optional>
#include <string>

namespace K = OrvoSettingsKeywords;

namespace {

constexpr int partNameSize = 128;

const char *attributeValue(const char *name, ppd_file_t *ppdFile) {
    const ppd_attr_t *attr = r_ppdFindAttr(ppdFile, name, nullptr);
    return attr ? attr->value : nullptr;
}

// Length of bytes without a trailing, unfinished UTF-8 sequence.
qsizetype withoutIncompleteTail(const QByteArray &bytes) {
    qsizetype lead = bytes.size();
    while (lead > 0 && bytes.size() - lead < 4 && (uchar(bytes[lead - 1]) & 0xC0) == 0x80)
        --lead;
    if (lead == 0)
        return bytes.size();
    const uchar first = uchar(bytes[lead - 1]);
    const int needed = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : first >= 0xC0 ? 2 : 1;
    const qsizetype present = bytes.size() - lead + 1;
    return present < needed ? lead - 1 : bytes.size();
}

// A null string when the bytes are not valid UTF-8.
QString strictUtf8(const QByteArray &bytes) {
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::ConvertInitialBom |
                                                       QStringConverter::Flag::Stateless);
    QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return QString();
    return text.isNull() ? QString("") : text;
}

// The decoded bytes up to the first NUL; nullopt when decoding fails.
std::optional<QByteArray> decodeBase64(const char *encoded) {
    char decoded[K::bufferSize] = {};
    int length = sizeof decoded;
    if (!httpDecode64_2(decoded, &length, encoded))
        return std::nullopt;
    return QByteArray(decoded,
                      qsizetype(strnlen(decoded, size_t(std::clamp(length, 0, K::bufferSize)))));
}

qint32 leadingDecimal(const QString &text) {
    const long long value = std::strtoll(text.toUtf8().constData(), nullptr, 10);
    return qint32(std::clamp<long long>(value, std::numeric_limits<qint32>::min(),
                                        std::numeric_limits<qint32>::max()));
}

// Reads keyword0 .. keyword(limit - 1) in index order; empty values are
// skipped, so gaps close up.
QStringList indexedValues(const char *keyword, int limit,
                          const std::function<QString(const char *)> &read) {
    QStringList values;
    char name[K::bufferSize];
    for (int i = 0; i < limit; ++i) {
        std::snprintf(name, sizeof name, "%s%d", keyword, i);
        const QString value = read(name);
        if (!value.isEmpty())
            values.append(value);
    }
    return values;
}

} // namespace

QString OrvoSNMPHelper::getPPDAttributeValueForName(const char *name, ppd_file_t *ppdFile) {
    const char *value = attributeValue(name, ppdFile);
    return value ? QString::fromUtf8(value) : QString("");
}

QString OrvoSNMPHelper::getDecodedPPDAttributeValueForName(const char *name, ppd_file_t *ppdFile) {
    const char *value = attributeValue(name, ppdFile);
    const std::optional<QByteArray> bytes = value ? decodeBase64(value) : std::nullopt;
    return bytes ? strictUtf8(*bytes) : QString();
}

QString OrvoSNMPHelper::getDecodedPPDAttributeMaltiPartValueForName(const char *name,
                                                                    ppd_file_t *ppdFile) {
    char joined[K::bufferSize] = {};
    size_t used = 0;
    char partName[partNameSize];
    const std::string partNameFormat = std::string("%s") + K::partSuffixFormat;
    for (int part = 1; part <= K::partCount; ++part) {
        std::snprintf(partName, sizeof partName, partNameFormat.c_str(), name, part);
        const char *value = attributeValue(partName, ppdFile);
        if (!value)
            continue;
        const size_t length = std::strlen(value);
        if (sizeof joined - used > length + 1) {
            std::memcpy(joined + used, value, length);
            used += length;
        }
    }
    // The 900-byte limit of a stored value can cut its last character; only
    // that character is dropped.
    const std::optional<QByteArray> bytes = decodeBase64(joined);
    const QString decoded =
        bytes ? strictUtf8(bytes->left(withoutIncompleteTail(*bytes))) : QString();
    return decoded.isEmpty() ? QString("") : decoded;
}

bool OrvoSNMPHelper::isCustomSnmpCommunity(ppd_file_t *ppdFile) {
    return getPPDAttributeValueForName(K::IsCustomSnmpCommunity, ppdFile) == "1";
}

QString OrvoSNMPHelper::snmpCommunityName(ppd_file_t *ppdFile) {
    const QString name = getDecodedPPDAttributeValueForName(K::SnmpCommunityName, ppdFile);
    return name.isNull() ? QString(K::defaultCommunity) : name;
}

bool OrvoSNMPHelper::isWakeOnLan(ppd_file_t *ppdFile) {
    const QString value = getPPDAttributeValueForName(K::IsWakeOnLan, ppdFile);
    return value == "" || value == "1";
}

QString OrvoSNMPHelper::getPrinterMacAddress(ppd_file_t *ppdFile) {
    const QString address = getDecodedPPDAttributeValueForName(K::PrinterMacAddress, ppdFile);
    return address.isNull() ? QString("") : address;
}

bool OrvoSNMPHelper::isOverTheRouter(ppd_file_t *ppdFile) {
    return getPPDAttributeValueForName(K::IsOverTheRouter, ppdFile) == "1";
}

QString OrvoSNMPHelper::getPrinterIPAddress(ppd_file_t *ppdFile) {
    const QString address = getDecodedPPDAttributeValueForName(K::PrinterIPAddress, ppdFile);
    return address.isNull() ? QString("") : address;
}

bool OrvoSNMPHelper::isPPDOptionsUpdated(ppd_file_t *ppdFile) {
    return getPPDAttributeValueForName(K::PPDOptionsUpdated, ppdFile) == "1";
}

bool OrvoSNMPHelper::isPersonalFolderSelected(ppd_file_t *ppdFile) {
    return getPPDAttributeValueForName(K::UsePersonalFolder, ppdFile) == "1";
}

bool OrvoSNMPHelper::isAdminLoginModeEnabled(ppd_file_t *ppdFile) {
    return getPPDAttributeValueForName(K::AdminLoginModeEnabled, ppdFile) != "0";
}

QStringList OrvoSNMPHelper::getSharedBoxDetailsArray(ppd_file_t *ppdFile) {
    return multiPartArray(K::SharedBoxName, K::listLimit, ppdFile);
}

QStringList OrvoSNMPHelper::getSelectedSharedBoxDetailsArray(ppd_file_t *ppdFile) {
    return multiPartArray(K::SelSharedBoxName, K::listLimit, ppdFile);
}

QList<qint32> OrvoSNMPHelper::getSelectedSharedBoxIndexArray(ppd_file_t *ppdFile) {
    QList<qint32> indices;
    const QStringList values =
        indexedValues(K::SelSharedBoxIndex, K::listLimit, [ppdFile](const char *name) {
            return getPPDAttributeValueForName(name, ppdFile);
        });
    for (const QString &value : values)
        indices.append(leadingDecimal(value));
    return indices;
}

QStringList OrvoSNMPHelper::getFormDetailsArray(ppd_file_t *ppdFile) {
    return multiPartArray(K::PSFormName, K::listLimit, ppdFile);
}

QStringList OrvoSNMPHelper::getBarcodeAreaDefinitionDetailsArray(ppd_file_t *ppdFile) {
    return multiPartArray(K::BarcodeAreaDefName, K::listLimit, ppdFile);
}

QStringList OrvoSNMPHelper::getColorProfileDetailsArray(ppd_file_t *ppdFile) {
    return multiPartArray(K::ColorProfileName, K::colorProfileLimit, ppdFile);
}

QStringList OrvoSNMPHelper::multiPartArray(const char *keyword, int limit, ppd_file_t *ppdFile) {
    return indexedValues(keyword, limit, [ppdFile](const char *name) {
        return getDecodedPPDAttributeMaltiPartValueForName(name, ppdFile);
    });
}
