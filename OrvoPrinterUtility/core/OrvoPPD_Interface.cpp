#include "OrvoPPD_Interface.h"

ppd_file_t *r_ppdOpenFile(const char *filename) {
    return ppdOpenFile(filename);
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
    return cupsGetPPD2(http, name);
}

int r_cupsMarkOptions(ppd_file_t *ppd, int numOptions, cups_option_t *options) {
    return cupsMarkOptions(ppd, numOptions, options);
}
