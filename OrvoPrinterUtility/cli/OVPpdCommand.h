#pragma once

#include <QCommandLineParser>
#include <QJsonObject>
#include <QString>

#include <optional>

// `ppd FILE`: a PPD as the program's own PPD reader (OrvoPPD) reads it.
//
// That reader stops the process on a text longer than the structure's fixed
// fields, by design. So the file is read in a forked child, and the parent
// reports the refusal instead of dying with it.
class OVPpdCommand {
public:
    static void addOptions(QCommandLineParser &parser);
    static int run(const QCommandLineParser &parser, bool json);

private:
    // Runs in the child: the PPD as JSON, or an error text.
    static QJsonObject read(const QString &path, const std::optional<QString> &language);
    static QString toText(const QJsonObject &ppd);
};
