#include "OrvoPPDStructure.h"

#include "OVSystemLog.h"

#include <cstdlib>
#include <cstring>
#include <syslog.h>

namespace {

void logError(const QString &line) {
    OVSystemLog::write(LOG_ERR, line);
}

template <typename T> T *allocateZeroed(size_t count) {
    return static_cast<T *>(calloc(count, sizeof(T)));
}

// The text between the first and the last double quote, when there are two.
QStringView unquoted(QStringView value) {
    const qsizetype first = value.indexOf(u'"');
    const qsizetype last = value.lastIndexOf(u'"');
    return first >= 0 && first < last ? value.sliced(first + 1, last - first - 1) : value;
}

} // namespace

void OrvoPPDStructure::copyChecked(char *field, size_t size, QStringView value,
                                   const char *fieldName) {
    const QByteArray bytes = value.toUtf8();
    if (size_t(bytes.size()) >= size) {
        logError(QString::fromLatin1(fieldOverflowFormat)
                     .arg(bytes.size())
                     .arg(QLatin1String(fieldName))
                     .arg(size - 1)
                     .arg(value));
        std::abort();
    }
    memcpy(field, bytes.constData(), size_t(bytes.size()) + 1);
}

char *OrvoPPDStructure::copyAllocated(const QByteArray &value) {
    char *copy = static_cast<char *>(malloc(size_t(value.size()) + 1));
    if (copy)
        memcpy(copy, value.constData(), size_t(value.size()) + 1);
    return copy;
}

ppd_file_t *OrvoPPDStructure::create(const OrvoPPDModel &model,
                                     const std::vector<OrvoPPDScanIndex::Attribute> &attributes) {
    ppd_file_t *ppd = allocateZeroed<ppd_file_t>(1);
    if (!ppd) {
        logError(QString::fromLatin1(fileMemoryError));
        return nullptr;
    }
    ppd->groups = allocateZeroed<ppd_group_t>(size_t(model.groupNames.size()));
    if (!ppd->groups) {
        logError(QString::fromLatin1(optionMemoryError));
        return ppd;
    }
    ppd->num_groups = int(model.groupNames.size());
    for (qsizetype i = 0; i < model.groupNames.size(); ++i)
        if (!fillGroup(ppd->groups[i], model.groups.value(model.groupNames[i])))
            return ppd;
    fillAttributes(*ppd, attributes);
    return ppd;
}

bool OrvoPPDStructure::fillGroup(ppd_group_t &group, const OrvoPPDModel::Group &source) {
    if (source.keys.isEmpty())
        return true;
    group.options = allocateZeroed<ppd_option_t>(size_t(source.keys.size()));
    if (!group.options) {
        logError(QString::fromLatin1(optionMemoryError));
        return false;
    }
    group.num_options = int(source.keys.size());
    for (qsizetype i = 0; i < source.keys.size(); ++i)
        if (!fillOption(group.options[i], source.keys[i], source.options.value(source.keys[i])))
            return false;
    return true;
}

bool OrvoPPDStructure::fillOption(ppd_option_t &option, const QString &keyword,
                                  const OrvoPPDModel::Option &source) {
    copyChecked(option.keyword, sizeof option.keyword, keyword, "option keyword");
    copyChecked(option.defchoice, sizeof option.defchoice,
                source.defaultChoice.value_or(QStringView()), "default choice");
    copyChecked(option.text, sizeof option.text, source.text.value_or(QStringView()),
                "option text");
    option.choices = allocateZeroed<ppd_choice_t>(size_t(source.choices.size()));
    if (!option.choices) {
        logError(QString::fromLatin1(optionMemoryError));
        return false;
    }
    option.num_choices = int(source.choices.size());
    for (qsizetype i = 0; i < source.choices.size(); ++i) {
        const OrvoPPDModel::Choice &choice = source.choices[i];
        copyChecked(option.choices[i].choice, sizeof option.choices[i].choice, choice.key,
                    "choice keyword");
        copyChecked(option.choices[i].text, sizeof option.choices[i].text, choice.text,
                    "choice text");
        if (choice.code != QStringView(OrvoPPDModel::emptyCode))
            option.choices[i].code = copyAllocated(choice.code.toUtf8());
    }
    return true;
}

bool OrvoPPDStructure::fillAttributes(ppd_file_t &ppd,
                                      const std::vector<OrvoPPDScanIndex::Attribute> &attributes) {
    if (attributes.empty())
        return true;
    ppd.attrs = allocateZeroed<ppd_attr_t *>(attributes.size());
    if (!ppd.attrs) {
        logError(QString::fromLatin1(optionMemoryError));
        return false;
    }
    for (const OrvoPPDScanIndex::Attribute &source : attributes) {
        ppd_attr_t *attribute = allocateZeroed<ppd_attr_t>(1);
        if (!attribute) {
            logError(QString::fromLatin1(optionMemoryError));
            return false;
        }
        copyChecked(attribute->name, sizeof attribute->name, source.name, "attribute name");
        attribute->value = copyAllocated(unquoted(source.value).toUtf8());
        if (!attribute->value) {
            free(attribute);
            logError(QString::fromLatin1(optionMemoryError));
            return false;
        }
        ppd.attrs[ppd.num_attrs++] = attribute;
    }
    return true;
}

void OrvoPPDStructure::release(ppd_file_t *ppd) {
    if (!ppd)
        return;
    for (int g = 0; g < ppd->num_groups; ++g) {
        ppd_group_t &group = ppd->groups[g];
        for (int o = 0; o < group.num_options; ++o) {
            ppd_option_t &option = group.options[o];
            for (int c = 0; c < option.num_choices; ++c)
                free(option.choices[c].code);
            free(option.choices);
        }
        free(group.options);
    }
    free(ppd->groups);
    for (int a = 0; a < ppd->num_attrs; ++a) {
        free(ppd->attrs[a]->value);
        free(ppd->attrs[a]);
    }
    free(ppd->attrs);
    free(ppd);
}
