#include "OrvoPPD_Interface.h"

#include "OVPlatformLogging.h"

ppd_file_t *r_ppdOpenFile(const char *filename) {
    ppd_file_t *ppd = ppdOpenFile(filename);
    if (!ppd) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        qCInfo(orvoPlatform) << "libcups cannot read the PPD" << filename << ":"
                             << ppdErrorString(status) << "on line" << line;
    }
    return ppd;
}

void r_ppdClose(ppd_file_t *ppd) {
    ppdClose(ppd);
}

int r_ppdLocalize(ppd_file_t *ppd) {
    return ppdLocalize(ppd);
}

ppd_attr_t *r_ppdFindAttr(ppd_file_t *ppd, const char *name, const char *qualifier) {
    return ppdFindAttr(ppd, name, qualifier);
}

ppd_option_t *r_ppdFindOption(ppd_file_t *ppd, const char *keyword) {
    return ppdFindOption(ppd, keyword);
}

ppd_option_t *r_ppdFirstOption(ppd_file_t *ppd) {
    return ppdFirstOption(ppd);
}

ppd_option_t *r_ppdNextOption(ppd_file_t *ppd) {
    return ppdNextOption(ppd);
}

ppd_choice_t *r_ppdFindChoice(ppd_option_t *option, const char *choice) {
    return ppdFindChoice(option, choice);
}

int r_ppdMarkOption(ppd_file_t *ppd, const char *keyword, const char *option) {
    return ppdMarkOption(ppd, keyword, option);
}

void r_ppdMarkDefaults(ppd_file_t *ppd) {
    ppdMarkDefaults(ppd);
}

ppd_choice_t *r_ppdFindMarkedChoice(ppd_file_t *ppd, const char *keyword) {
    return ppdFindMarkedChoice(ppd, keyword);
}

const char *r_cupsGetPPD2(http_t *http, const char *name) {
    const char *path = cupsGetPPD2(http, name);
    if (!path)
        qCInfo(orvoPlatform) << "libcups cannot fetch the PPD of" << name << ":"
                             << cupsLastErrorString();
    return path;
}

const char *r_cupsGetServerPPD(http_t *http, const char *name) {
    const char *path = cupsGetServerPPD(http, name);
    if (!path)
        qCInfo(orvoPlatform) << "libcups cannot fetch the driver PPD" << name << ":"
                             << cupsLastErrorString();
    return path;
}

int r_cupsMarkOptions(ppd_file_t *ppd, int numOptions, cups_option_t *options) {
    return cupsMarkOptions(ppd, numOptions, options);
}
