#include "StoredSettings.h"

#include "OrvoSettingsKeywords.h"

#include <QRegularExpression>
#include <QTemporaryFile>

#include <cups/ppd.h>

#include <set>

namespace {

using OrvoSettingsKeywords::Encoding;
using OrvoSettingsKeywords::Keyword;

const QRegularExpression attributeLine(QStringLiteral("^\\*([A-Za-z0-9_]+): \"([^\"]*)\"$"));

std::vector<std::string> formsOf(const Keyword &keyword) {
    std::vector<std::string> bases;
    if (keyword.indexCount == 0)
        bases.emplace_back(keyword.name);
    for (int i = 0; i < keyword.indexCount; ++i)
        bases.push_back(keyword.name + std::to_string(i));
    if (keyword.encoding != Encoding::MultiPart)
        return bases;
    std::vector<std::string> parts;
    for (const std::string &base : bases) {
        for (int part = 1; part <= OrvoSettingsKeywords::partCount; ++part)
            parts.push_back(base + "_Part" + std::to_string(part));
    }
    return parts;
}

std::string valueFor(Encoding encoding, const std::string &name, int save, std::size_t position) {
    switch (encoding) {
    case Encoding::Flag:
        return save % 2 ? "1" : "0";
    case Encoding::Decimal:
        return std::to_string(save * 1000 + int(position));
    case Encoding::Base64:
        return StoredSettings::base64(std::to_string(save) + ":" + name);
    case Encoding::MultiPart:
        return name.ends_with("_Part1") ? StoredSettings::base64(std::to_string(save) + ":" + name)
                                        : "";
    case Encoding::JobMarker:
        break;
    }
    return {};
}

} // namespace

const std::vector<std::string> &StoredSettings::names() {
    static const std::vector<std::string> all = [] {
        std::vector<std::string> names;
        for (const Keyword &keyword : OrvoSettingsKeywords::all) {
            if (keyword.encoding == Encoding::JobMarker)
                continue;
            for (const std::string &name : formsOf(keyword))
                names.push_back(name);
        }
        return names;
    }();
    return all;
}

StoredSettings::Values StoredSettings::completeSet(int save) {
    Values values;
    for (const Keyword &keyword : OrvoSettingsKeywords::all) {
        if (keyword.encoding == Encoding::JobMarker)
            continue;
        const std::vector<std::string> forms = formsOf(keyword);
        for (std::size_t i = 0; i < forms.size(); ++i)
            values[forms[i]] = valueFor(keyword.encoding, forms[i], save, i);
    }
    return values;
}

StoredSettings::Values StoredSettings::in(const QByteArray &ppd) {
    Values values;
    for (const QByteArray &line : lines(ppd)) {
        if (auto setting = settingOf(line))
            values.insert(*setting);
    }
    return values;
}

bool StoredSettings::isSettingLine(const QByteArray &line) {
    return settingOf(line).has_value();
}

std::optional<std::pair<std::string, std::string>>
StoredSettings::settingOf(const QByteArray &line) {
    static const std::set<std::string> known(names().begin(), names().end());
    const QRegularExpressionMatch match = attributeLine.match(QString::fromLatin1(line));
    if (!match.hasMatch() || !known.contains(match.captured(1).toStdString()))
        return std::nullopt;
    return std::pair(match.captured(1).toStdString(), match.captured(2).toStdString());
}

QList<QByteArray> StoredSettings::lines(const QByteArray &ppd) {
    QList<QByteArray> lines = ppd.split('\n');
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

bool StoredSettings::opensWithLibcups(const QByteArray &ppd) {
    QTemporaryFile file;
    if (!file.open() || file.write(ppd) != ppd.size() || !file.flush())
        return false;
    ppd_file_t *opened = ppdOpenFile(file.fileName().toUtf8().constData());
    ppdClose(opened);
    return opened != nullptr;
}

std::string StoredSettings::base64(const std::string &text) {
    char encoded[4096] = {};
    httpEncode64_2(encoded, sizeof encoded, text.data(), int(text.size()));
    return encoded;
}
