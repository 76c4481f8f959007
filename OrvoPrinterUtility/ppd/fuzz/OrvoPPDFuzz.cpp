// libFuzzer target: reading, localizing, finding and marking in any file.
// Inputs that the reader stops on by design (a string too long for its fixed
// field) are recognized first and skipped, so every other stop is a finding.
#include "OrvoPPD.h"
#include "OrvoPPDReader.h"
#include "OrvoPPDScanIndex.h"

#include <QDir>
#include <QFile>
#include <QStringDecoder>

#include <unistd.h>

namespace {

bool fits(QStringView value, int limit) {
    return value.toUtf8().size() <= limit;
}

// Whether the reader would stop on this text: the same reading, sizes only.
bool readerStops(const QByteArray &bytes) {
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QString text = OrvoPPDReader::readPart(decoder.decode(bytes));
    if (decoder.hasError())
        return false;
    const OrvoPPDScanIndex index(text);
    const std::optional<OrvoPPDModel> model = OrvoPPDReader::read(text, index);
    if (!model)
        return false;
    for (const OrvoPPDModel::Group &group : model->groups) {
        for (const OrvoPPDModel::Option &option : group.options) {
            if (!fits(option.text.value_or(QStringView()), 80) ||
                !fits(option.defaultChoice.value_or(QStringView()), 40))
                return true;
            for (const OrvoPPDModel::Choice &choice : option.choices)
                if (!fits(choice.key, 40) || !fits(choice.text, 80))
                    return true;
        }
        for (const QString &keyword : group.keys)
            if (!fits(keyword, 40))
                return true;
    }
    for (const OrvoPPDScanIndex::Attribute &attribute : index.attributes())
        if (!fits(attribute.name, 40))
            return true;
    return false;
}

void exercise(ppd_file_t *ppd, const char *path) {
    OrvoPPD::ppdLocalize(ppd, path);
    OrvoPPD::ppdMarkDefaults(ppd);
    if (ppd->num_attrs > 0)
        OrvoPPD::ppdFindAttr(ppd, ppd->attrs[0]->name, ppd->attrs[0]->spec);
    for (int g = 0; g < ppd->num_groups; ++g) {
        for (int o = 0; o < ppd->groups[g].num_options; ++o) {
            const char *keyword = ppd->groups[g].options[o].keyword;
            ppd_option_t *option = OrvoPPD::ppdFindOption(ppd, keyword);
            const char *choice = option->choices[option->num_choices - 1].choice;
            OrvoPPD::ppdFindChoice(option, choice);
            OrvoPPD::ppdMarkOption(ppd, keyword, choice);
            OrvoPPD::ppdFindMarkedChoice(ppd, keyword);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    static const QByteArray path =
        QDir::temp().filePath(QStringLiteral("orvoppd-fuzz-%1.ppd").arg(getpid())).toUtf8();
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    QFile file(QString::fromUtf8(path));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return 0;
    file.write(bytes);
    file.close();
    if (readerStops(bytes))
        return 0;
    if (ppd_file_t *ppd = OrvoPPD::ppdOpenFile(path.constData())) {
        exercise(ppd, path.constData());
        OrvoPPD::ppdClose(ppd);
    }
    return 0;
}
