#include "OVPpdCommand.h"

#include "OVCliLogging.h"
#include "OVCommandLine.h"
#include "OVPreferredLanguages.h"
#include "OVSystemLog.h"
#include "OrvoPPD.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStringDecoder>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>

namespace {

using Exit = OVCommandLine::Exit;
const QCommandLineOption languageOption(
    "lang", "Localize texts for this language (\"ja\", \"de\", ...), as the PPD translates them.",
    "language");
constexpr char errorKey[] = "error";

QString textOf(const char *text) {
    return QString::fromUtf8(text);
}

QJsonArray optionsOf(const ppd_group_t &group) {
    QJsonArray options;
    for (int o = 0; o < group.num_options; ++o) {
        const ppd_option_t &option = group.options[o];
        QJsonArray choices;
        for (int c = 0; c < option.num_choices; ++c)
            choices.append(QJsonObject{{"choice", textOf(option.choices[c].choice)},
                                       {"text", textOf(option.choices[c].text)}});
        options.append(QJsonObject{{"keyword", textOf(option.keyword)},
                                   {"text", textOf(option.text)},
                                   {"default", textOf(option.defchoice)},
                                   {"choices", choices}});
    }
    return options;
}

QJsonObject jsonOf(ppd_file_t *ppd, const QStringList &groupNames) {
    QJsonArray groups;
    for (int g = 0; g < ppd->num_groups; ++g)
        groups.append(
            QJsonObject{{"name", groupNames.value(g)}, {"options", optionsOf(ppd->groups[g])}});
    QJsonArray attributes;
    for (int a = 0; a < ppd->num_attrs; ++a)
        attributes.append(QJsonObject{{"name", textOf(ppd->attrs[a]->name)},
                                      {"value", textOf(ppd->attrs[a]->value)}});
    return {{"groups", groups}, {"attributes", attributes}};
}

// Writes all bytes to the pipe; the child has nothing else to do on failure.
void writeAll(int fd, const QByteArray &bytes) {
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t n = write(fd, bytes.constData() + done, size_t(bytes.size() - done));
        if (n <= 0)
            return;
        done += n;
    }
}

int cannotStartReader() {
    qCInfo(orvoCli) << "the PPD reader's process:" << std::strerror(errno);
    return OVCommandLine::fail(Exit::Failed, "cannot start the PPD reader");
}

QByteArray readAllFrom(int fd) {
    QByteArray bytes;
    char buffer[65536];
    for (ssize_t n; (n = read(fd, buffer, sizeof buffer)) > 0;)
        bytes.append(buffer, n);
    return bytes;
}

} // namespace

void OVPpdCommand::addOptions(QCommandLineParser &parser) {
    parser.addOption(languageOption);
}

QJsonObject OVPpdCommand::read(const QString &path, const std::optional<QString> &language) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {{errorKey, "cannot read " + path + ": " + file.errorString()}};
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(file.readAll());
    if (utf8.hasError())
        return {{errorKey, path + " is not UTF-8 text, which the PPD reader requires"}};
    const QByteArray local = path.toLocal8Bit();
    ppd_file_t *ppd = OrvoPPD::ppdOpenFile(local.constData());
    if (!ppd)
        return {{errorKey, path + " has no options, or an option without choices"}};
    if (language) {
        OVPreferredLanguages::setOverride(QStringList{*language});
        OrvoPPD::ppdLocalize(ppd, local.constData());
    }
    const QJsonObject json = jsonOf(ppd, OrvoPPD::groupKeyword(text));
    OrvoPPD::ppdClose(ppd);
    return json;
}

int OVPpdCommand::run(const QCommandLineParser &parser, bool json) {
    const QString path = parser.positionalArguments().first();
    const std::optional<QString> language =
        parser.isSet(languageOption) ? std::optional(parser.value(languageOption)) : std::nullopt;
    // One pipe carries the reader's log lines and, last and unterminated, the
    // result.
    int toParent[2];
    if (pipe(toParent) != 0)
        return cannotStartReader();
    const pid_t child = fork();
    if (child == 0) {
        // A refusal aborts: no core file for it.
        const rlimit noCore{0, 0};
        setrlimit(RLIMIT_CORE, &noCore);
        close(toParent[0]);
        OVSystemLog::setSink(
            [fd = toParent[1]](int, const QString &line) { writeAll(fd, line.toUtf8() + '\n'); });
        writeAll(toParent[1], QJsonDocument(read(path, language)).toJson(QJsonDocument::Compact));
        _exit(0);
    }
    close(toParent[1]);
    const QByteArray output = child > 0 ? readAllFrom(toParent[0]) : QByteArray();
    close(toParent[0]);
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child)
        return cannotStartReader();
    if (WIFSIGNALED(status)) {
        qCInfo(orvoCli) << "the PPD reader stopped on signal" << WTERMSIG(status);
        return OVCommandLine::fail(Exit::Failed,
                                   path +
                                       " holds a text longer than the PPD reader's fixed fields "
                                       "allow, which it refuses: " +
                                       QString::fromUtf8(output).trimmed());
    }
    const QJsonObject ppd =
        QJsonDocument::fromJson(output.mid(output.lastIndexOf('\n') + 1)).object();
    if (ppd.contains(errorKey))
        return OVCommandLine::fail(Exit::Failed, ppd[errorKey].toString());
    OVCommandLine::print(json, ppd, toText(ppd));
    return Exit::Success;
}

QString OVPpdCommand::toText(const QJsonObject &ppd) {
    // Every text comes from the PPD file, which need not be trusted.
    const auto shown = [](const QJsonValue &object, const char *key) {
        return OVCommandLine::visible(object[key].toString());
    };
    QString text;
    for (const QJsonValue &group : ppd["groups"].toArray()) {
        text += "Group " + shown(group, "name") + "\n";
        for (const QJsonValue &option : group["options"].toArray()) {
            text +=
                QStringLiteral("  %1 \"%2\" (default %3)\n")
                    .arg(shown(option, "keyword"), shown(option, "text"), shown(option, "default"));
            for (const QJsonValue &choice : option["choices"].toArray())
                text += QStringLiteral("    %1 \"%2\"\n")
                            .arg(shown(choice, "choice"), shown(choice, "text"));
        }
    }
    text += "Attributes\n";
    for (const QJsonValue &attribute : ppd["attributes"].toArray())
        text +=
            QStringLiteral("  *%1: %2\n").arg(shown(attribute, "name"), shown(attribute, "value"));
    return text;
}
