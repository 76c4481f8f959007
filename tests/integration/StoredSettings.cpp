#include "StoredSettings.h"

#include "OrvoSettingsKeywords.h"

#include <QRegularExpression>

#include <algorithm>

namespace K = OrvoSettingsKeywords;

StoredSettings::Values StoredSettings::completeSet(int save) {
    Values values;
    for (const K::Keyword &keyword : K::all) {
        for (int i = 0; i < std::max(keyword.indexCount, 1); ++i) {
            const QByteArray name =
                keyword.name + (keyword.indexCount ? QByteArray::number(i) : QByteArray());
            const QByteArray tag = (QByteArray::number(save) + ":" + name).toBase64();
            if (keyword.encoding == K::Encoding::Flag)
                values[name] = QByteArray::number(save % 2);
            else if (keyword.encoding == K::Encoding::Decimal)
                values[name] = QByteArray::number(save * 1000 + i);
            else if (keyword.encoding == K::Encoding::Base64)
                values[name] = tag;
            for (int part = 1; keyword.encoding == K::Encoding::MultiPart && part <= K::partCount;
                 ++part)
                values[name + "_Part" + QByteArray::number(part)] = part == 1 ? tag : "";
        }
    }
    return values;
}

QByteArray StoredSettings::jobOptions(const Values &values) {
    QByteArray text = K::UpdatePPDOptions;
    for (const auto &[name, value] : values)
        text += " " + name + "=" + value;
    return text;
}

StoredSettings::Values StoredSettings::in(const QByteArray &ppd) {
    static const Values known = completeSet(0);
    static const QRegularExpression line(QStringLiteral("^\\*(\\w+): \"([^\"]*)\"$"),
                                         QRegularExpression::MultilineOption);
    Values found;
    for (const QRegularExpressionMatch &match : line.globalMatch(QString::fromLatin1(ppd))) {
        if (known.contains(match.captured(1).toLatin1()))
            found[match.captured(1).toLatin1()] = match.captured(2).toLatin1();
    }
    return found;
}
