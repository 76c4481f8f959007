#pragma once

#include "OrvoPPDModel.h"
#include "OrvoPPDScanIndex.h"

#include <cups/ppd.h>

#include <vector>

// Fills and frees the libcups PPD structure the reader hands out. Only the
// group, option, choice and attribute fields the reader knows are written;
// everything else stays zero. Strings go whole into the fixed-size fields: one
// that does not fit stops the program rather than being cut.
class OrvoPPDStructure {
public:
    static constexpr char fieldOverflowFormat[] =
        "[Driver] PPD field overflow: %1 bytes do not fit in %2 (at most %3): %4";
    static constexpr char fileMemoryError[] = "[Driver] PPD file memory faild!!!";
    static constexpr char optionMemoryError[] = "[Driver] PPD option memory faild!!!";

    // Null only when the structure itself cannot be allocated; a later failed
    // allocation returns what was filled so far.
    static ppd_file_t *create(const OrvoPPDModel &model,
                              const std::vector<OrvoPPDScanIndex::Attribute> &attributes);
    static void release(ppd_file_t *ppd);

    // Copies UTF-8 bytes and a terminator into a field of `size` bytes, or logs
    // and aborts when they do not fit.
    static void copyChecked(char *field, size_t size, QStringView value, const char *fieldName);

private:
    static bool fillGroup(ppd_group_t &group, const OrvoPPDModel::Group &source);
    static bool fillOption(ppd_option_t &option, const QString &keyword,
                           const OrvoPPDModel::Option &source);
    static bool fillAttributes(ppd_file_t &ppd,
                               const std::vector<OrvoPPDScanIndex::Attribute> &attributes);
    static char *copyAllocated(const QByteArray &value);
};
