#include "OVSettingsFields.h"

#include "OVCommandLine.h"
#include "OrvoSettingsKeywords.h"

#include <QJsonArray>

#include <optional>
#include <variant>

namespace {

using Member = std::variant<bool OVSettingsSnapshot::*, QString OVSettingsSnapshot::*,
                            QStringList OVSettingsSnapshot::*, QList<qint32> OVSettingsSnapshot::*>;

struct Field {
    const char *key;
    Member member;
    const char *description;
    const char *keyword; // the settings keyword the field is stored under
    // Kept by the utility itself: in JSON, which round-trips, but no option.
    bool internal = false;
};

namespace K = OrvoSettingsKeywords;

using S = OVSettingsSnapshot;
const Field fields[] = {
    {"optionsUpdated", &S::isPPDOptionsUpdated, "Settings were saved by the utility (true/false).",
     K::PPDOptionsUpdated, true},
    {"customCommunity", &S::snmpCommunityCheck, "Use the community below (true/false).",
     K::IsCustomSnmpCommunity},
    {"community", &S::snmpCommunityText, "SNMP community name.", K::SnmpCommunityName},
    {"snmpVersion", &S::snmpVersion,
     "SNMP version the printer is asked with: 1 (community) or 3 (user).", K::SnmpVersion},
    {"snmpUser", &S::snmpUserText, "SNMPv3 user name.", K::SnmpUserName},
    {"snmpAuth", &S::snmpAuthProtocol,
     "SNMPv3 authentication protocol: SHA-256, SHA-512, SHA-384, SHA-224, SHA-1 or MD5.",
     K::SnmpAuthProtocol},
    {"snmpPriv", &S::snmpPrivProtocol,
     "SNMPv3 privacy protocol: AES-128, AES-256, AES-192 or DES; empty for none.",
     K::SnmpPrivProtocol},
    {"wakeOnLan", &S::wakeOnLANCheck, "Wake the printer before querying it (true/false).",
     K::IsWakeOnLan},
    {"macAddress", &S::macAddress,
     "Printer MAC address: six two-digit hexadecimal numbers joined by \":\".",
     K::PrinterMacAddress},
    {"overRouter", &S::overstepTheRouter, "Wake the printer across a router (true/false).",
     K::IsOverTheRouter},
    {"ipAddress", &S::printerIPAddressText, "Printer address used to wake it across a router.",
     K::PrinterIPAddress},
    {"sharedFolders", &S::allSharedBoxNames, "Shared folder names (repeat for each).",
     K::SharedBoxName},
    {"chosenFolders", &S::selectedSharedBoxNames, "Shared folders chosen for this queue.",
     K::SelSharedBoxName},
    {"chosenFolderIndexes", &S::selectedSharedBoxIndex, "Shared-folder row of each chosen folder.",
     K::SelSharedBoxIndex, true},
    {"personalFolder", &S::folderPersonalFolderCheck, "Use the personal folder (true/false).",
     K::UsePersonalFolder},
    {"adminLoginMode", &S::bAdminLoginModeEnabled, "Printer has admin login mode (true/false).",
     K::AdminLoginModeEnabled},
    {"forms", &S::formNames, "Form names (repeat for each).", K::PSFormName},
    {"barcodeAreas", &S::barcodeAreaDefinitionNames, "Barcode area definition names.",
     K::BarcodeAreaDefName},
    {"colorProfiles", &S::colorProfileNames, "Colour profile names.", K::ColorProfileName},
};

QString keyOf(std::string_view keyword) {
    for (const Field &field : fields) {
        if (keyword == field.keyword)
            return QStringLiteral("\"%1\"").arg(field.key);
    }
    return QString::fromUtf8(keyword.data(), qsizetype(keyword.size()));
}

template <class... F> struct Overloaded : F... { using F::operator()...; };
// Spelled out for compilers that do not deduce it for aggregates yet.
template <class... F> Overloaded(F...) -> Overloaded<F...>;

QJsonValue jsonOf(const S &settings, const Member &member) {
    return std::visit(
        Overloaded{
            [&](bool S::*m) { return QJsonValue(settings.*m); },
            [&](QString S::*m) { return QJsonValue(settings.*m); },
            [&](QStringList S::*m) { return QJsonValue(QJsonArray::fromStringList(settings.*m)); },
            [&](QList<qint32> S::*m) {
                QJsonArray array;
                for (qint32 index : settings.*m)
                    array.append(index);
                return QJsonValue(array);
            },
        },
        member);
}

std::optional<bool> boolOf(const QString &text) {
    if (text == "true" || text == "1" || text == "yes")
        return true;
    if (text == "false" || text == "0" || text == "no")
        return false;
    return std::nullopt;
}

// Sets one field from JSON; false when the value has the wrong shape.
bool setFromJson(S &settings, const Member &member, const QJsonValue &value) {
    return std::visit(
        Overloaded{
            [&](bool S::*m) { return value.isBool() && ((settings.*m = value.toBool()), true); },
            [&](QString S::*m) {
                return value.isString() && ((settings.*m = value.toString()), true);
            },
            [&](QStringList S::*m) {
                QStringList list;
                for (const QJsonValue &item : value.toArray()) {
                    if (!item.isString())
                        return false;
                    list << item.toString();
                }
                return value.isArray() && ((settings.*m = list), true);
            },
            [&](QList<qint32> S::*m) {
                QList<qint32> list;
                for (const QJsonValue &item : value.toArray()) {
                    if (!item.isDouble() || item.toDouble() != item.toInt())
                        return false;
                    list << item.toInt();
                }
                return value.isArray() && ((settings.*m = list), true);
            },
        },
        member);
}

// The JSON value a field's option texts stand for; nullopt when they do not
// parse.
std::optional<QJsonValue> jsonOfOptionTexts(const Member &member, const QStringList &texts) {
    return std::visit(Overloaded{
                          [&](bool S::*) -> std::optional<QJsonValue> {
                              const auto value = boolOf(texts.last());
                              return value ? std::optional<QJsonValue>(*value) : std::nullopt;
                          },
                          [&](QStringList S::*) -> std::optional<QJsonValue> {
                              return QJsonArray::fromStringList(texts);
                          },
                          [&](QList<qint32> S::*) -> std::optional<QJsonValue> {
                              QJsonArray array;
                              for (const QString &text : texts) {
                                  bool ok = false;
                                  array.append(text.toInt(&ok));
                                  if (!ok)
                                      return std::nullopt;
                              }
                              return array;
                          },
                          [&](auto) -> std::optional<QJsonValue> { return texts.last(); },
                      },
                      member);
}

// The documented spelling of a field's option is kebab-case, as CUPS's and
// most tools' options are; the JSON key is accepted as well.
QStringList optionNames(const char *key) {
    QString kebab;
    for (const QChar c : QString::fromLatin1(key))
        kebab += c.isUpper() ? QStringLiteral("-") + c.toLower() : QString(c);
    return kebab == key ? QStringList{kebab} : QStringList{kebab, key};
}

QString invalidValue(const char *key) {
    return QStringLiteral("invalid value for \"%1\"").arg(key);
}

} // namespace

QJsonObject OVSettingsFields::toJson(const OVSettingsSnapshot &settings) {
    QJsonObject json;
    for (const Field &field : fields)
        json.insert(field.key, jsonOf(settings, field.member));
    return json;
}

QString OVSettingsFields::toText(const OVSettingsSnapshot &settings) {
    QString text;
    for (const Field &field : fields) {
        const QJsonValue value = jsonOf(settings, field.member);
        if (value.isBool())
            text += QStringLiteral("%1: %2\n").arg(field.key, value.toBool() ? "yes" : "no");
        else if (value.isString())
            text +=
                QStringLiteral("%1: %2\n").arg(field.key, OVCommandLine::visible(value.toString()));
        else {
            text += QStringLiteral("%1: (%2)\n").arg(field.key).arg(value.toArray().size());
            for (const QJsonValue &item : value.toArray())
                text += "  " + OVCommandLine::visible(item.toVariant().toString()) + "\n";
        }
    }
    return text;
}

QList<QCommandLineOption> OVSettingsFields::options() {
    QList<QCommandLineOption> options;
    for (const Field &field : fields) {
        if (!field.internal)
            options.append({optionNames(field.key), field.description, "value"});
    }
    return options;
}

QString OVSettingsFields::apply(const QJsonObject &json, OVSettingsSnapshot &settings) {
    for (auto it = json.begin(); it != json.end(); ++it) {
        const auto field = std::find_if(std::begin(fields), std::end(fields),
                                        [&](const Field &f) { return it.key() == f.key; });
        if (field == std::end(fields))
            return QStringLiteral("unknown setting \"%1\"").arg(it.key());
        if (!setFromJson(settings, field->member, it.value()))
            return invalidValue(field->key);
    }
    return {};
}

QString OVSettingsFields::apply(const QCommandLineParser &parser, OVSettingsSnapshot &settings) {
    QJsonObject json;
    for (const Field &field : fields) {
        if (field.internal || !parser.isSet(field.key))
            continue;
        const auto value = jsonOfOptionTexts(field.member, parser.values(field.key));
        if (!value)
            return invalidValue(field.key);
        json.insert(field.key, *value);
    }
    return apply(json, settings);
}

QString OVSettingsFields::verdictText(const OrvoSettingsVerdict &verdict) {
    QStringList lists;
    for (std::string_view list : verdict.listsToShorten)
        lists << keyOf(list);
    const QString explanation = QString::fromStdString(verdict.explanation());
    if (lists.isEmpty())
        return keyOf(verdict.field) + " " + explanation;
    return "the settings " + explanation + " (shorten " + lists.join(", ") + ")";
}
