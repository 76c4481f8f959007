#pragma once

#include <cups/cups.h>
#include <cups/ppd.h>

// The one place the program, its tests and benchmarks reach libcups's
// deprecated PPD calls. Each wrapper passes its arguments unchanged and
// returns the call's result, so the deprecated API stays confined to this
// file; a failed open or fetch logs libcups' own reason.

ppd_file_t *r_ppdOpenFile(const char *filename);
void r_ppdClose(ppd_file_t *ppd);
int r_ppdLocalize(ppd_file_t *ppd);
ppd_attr_t *r_ppdFindAttr(ppd_file_t *ppd, const char *name, const char *qualifier);
ppd_option_t *r_ppdFindOption(ppd_file_t *ppd, const char *keyword);
ppd_option_t *r_ppdFirstOption(ppd_file_t *ppd);
ppd_option_t *r_ppdNextOption(ppd_file_t *ppd);
ppd_choice_t *r_ppdFindChoice(ppd_option_t *option, const char *choice);
int r_ppdMarkOption(ppd_file_t *ppd, const char *keyword, const char *option);
void r_ppdMarkDefaults(ppd_file_t *ppd);
ppd_choice_t *r_ppdFindMarkedChoice(ppd_file_t *ppd, const char *keyword);
const char *r_cupsGetPPD2(http_t *http, const char *name);
// A driver's PPD as the server makes it for lpadmin -m NAME, in a temporary file.
const char *r_cupsGetServerPPD(http_t *http, const char *name);
int r_cupsMarkOptions(ppd_file_t *ppd, int numOptions, cups_option_t *options);
