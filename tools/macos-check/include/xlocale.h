// The functions with a locale of their own that libc++ calls on a Mac, as their manual pages declare them.
#pragma once

#include <ctype.h>
#include <locale.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>
#include <wchar.h>
#include <wctype.h>

#undef isdigit_l // macros that look into this machine's own locales
#undef isxdigit_l
#define MB_CUR_MAX_L(locale) MB_CUR_MAX

extern "C" {
wint_t btowc_l(int c, locale_t locale);
int wctob_l(wint_t c, locale_t locale);
size_t wcsnrtombs_l(char *out, const wchar_t **in, size_t most, size_t length, mbstate_t *state,
                    locale_t locale);
size_t wcrtomb_l(char *out, wchar_t c, mbstate_t *state, locale_t locale);
size_t mbsnrtowcs_l(wchar_t *out, const char **in, size_t most, size_t length, mbstate_t *state,
                    locale_t locale);
size_t mbrtowc_l(wchar_t *out, const char *in, size_t most, mbstate_t *state, locale_t locale);
int mbtowc_l(wchar_t *out, const char *in, size_t most, locale_t locale);
size_t mbrlen_l(const char *in, size_t most, mbstate_t *state, locale_t locale);
size_t mbsrtowcs_l(wchar_t *out, const char **in, size_t length, mbstate_t *state, locale_t locale);
lconv *localeconv_l(locale_t locale);
int snprintf_l(char *out, size_t size, locale_t locale, const char *format, ...);
int asprintf_l(char **out, locale_t locale, const char *format, ...);
int sscanf_l(const char *in, locale_t locale, const char *format, ...);
}
