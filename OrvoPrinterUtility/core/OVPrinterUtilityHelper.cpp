#include "OVPrinterUtilityHelper.h"

#include "OVPreferredLanguages.h"
#include "OVSystemVersion.h"

#include <QDir>
#include <QHash>
#include <QLocale>
#include <QTranslator>

#include <memory>
#include <mutex>

namespace {
const QString lprojSuffix(".lproj");

// Loaded tables stay for the life of the process: the window looks up
// every text once at start and the 100 folder names on each reload.
QString translate(const QString &qmPath, const QString &key) {
    static std::mutex mutex;
    static QHash<QString, std::shared_ptr<QTranslator>> tables;
    std::lock_guard lock(mutex);
    auto &table = tables[qmPath];
    if (!table) {
        table = std::make_shared<QTranslator>();
        if (!table->load(qmPath))
            return QString();
    }
    return table->translate(OVPrinterUtilityHelper::stringTable, key.toUtf8().constData());
}

// "zh-Hans-CN" -> "zh-Hans-CN", "zh-Hans", "zh"; "zh-TW" also gives "zh-Hant"
// through its script, so a regional code finds the folder of its script.
QStringList candidateFolders(const QString &language) {
    QStringList candidates;
    QStringList parts = language.split('-');
    while (!parts.isEmpty()) {
        candidates << parts.join('-');
        parts.removeLast();
    }
    const QLocale locale(language);
    if (locale.language() != QLocale::C && locale.script() != QLocale::AnyScript) {
        const QString scripted = QLocale::languageToCode(locale.language()) + '-' +
                                 QLocale::scriptToCode(locale.script());
        candidates.insert(qMin<qsizetype>(1, candidates.size()), scripted);
    }
    return candidates;
}
} // namespace

QString OVPrinterUtilityHelper::getSystemLanguage(bool fullName) {
    int major = 0, middle = 0;
    OVSystemVersion::components(&major, &middle, nullptr);
    const QString language = OVPreferredLanguages::first();
    if (major != 10 || middle < 12 || fullName)
        return language;
    QStringList parts = language.split('-');
    if (parts.size() == 1)
        return QString(""); // deliberately empty, not the language itself
    parts.removeLast();
    return parts.join('-');
}

QString OVPrinterUtilityHelper::getLocalizedStringFor(const QString &key) {
    QString folder = folderFor(getSystemLanguage(true));
    if (folder.isEmpty())
        folder = folderFor(getSystemLanguage(false));
    if (folder.isEmpty())
        folder = bestShippedFolder();
    return folder.isEmpty() ? key : lookup(folder, key);
}

QStringList OVPrinterUtilityHelper::shippedLocalizations() {
    return QDir(":/").entryList({"*" + lprojSuffix}, QDir::Dirs, QDir::Name);
}

QString OVPrinterUtilityHelper::folderFor(const QString &language) {
    if (language.isEmpty())
        return QString();
    const QString folder = ":/" + language + lprojSuffix;
    return QDir(folder).exists() ? folder : QString();
}

// When no folder carries the system language's name:
// the first preferred language that some shipped folder serves, else English.
QString OVPrinterUtilityHelper::bestShippedFolder() {
    for (const QString &language : OVPreferredLanguages::languages()) {
        for (const QString &candidate : candidateFolders(language)) {
            const QString folder = folderFor(candidate);
            if (!folder.isEmpty())
                return folder;
        }
    }
    return folderFor("en");
}

// A key missing from the table yields the key itself: the keys are the
// English texts, so an untranslated text still reads in English.
QString OVPrinterUtilityHelper::lookup(const QString &folder, const QString &key) {
    const QString text = translate(folder + '/' + stringTable + ".qm", key);
    return text.isEmpty() ? key : text;
}
