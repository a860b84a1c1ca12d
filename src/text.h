// text: bounded strings, and the character sets of names that go into files and to the server.
#pragma once
#include <cstdarg>
#include <cstddef>

// Copy at most len - 1 characters and always terminate inside len (the size of dst). Returns dst.
char* ktr_strncpy(char* dst, const char* src, size_t len);
// Append what fits; len is the size of the whole of dst. Always terminates. Returns dst.
char* ktr_strncat(char* dst, const char* src, size_t len);
// At most n characters, as far as dst has room.
char* strncpy_secu(char* dst, const char* src, size_t dst_size, size_t n);
// At most n characters, terminated behind them: dst has room for n + 1.
char* strncpy_close(char* dst, const char* src, size_t n);

// Copy into an array: the size is the array's own, and a bare pointer does not compile.
template <size_t N> void CopyText(char (&dst)[N], const char* src)
{
    ktr_strncpy(dst, src, N);
}
template <size_t N> void AppendText(char (&dst)[N], const char* src)
{
    ktr_strncat(dst, src, N);
}
// Print into an array; cut at its end. Returns what snprintf returns.
template <size_t N>
__attribute__((format(printf, 2, 3))) int PrintText(char (&dst)[N], const char* format, ...);

bool BeginsWith(const char* text, const char* prefix);

// Make a text fit for a name: unsafe characters become "_", the first control character ends it.
// Returns 1 when what is left is not empty. One character list a kind, all in text.cpp.
int StrFileName(char* str);
int StrFatFileName(char* str);
int StrRegName(char* str);
int StrSourceName(char* str);
void StrUpr(char* str);
void StrLwr(char* str);

// Case-blind search and compare (ASCII); as strstr, strcmp, strncmp. Null texts count as empty.
const char* StrIStr(const char* text, const char* part);
int StrICmp(const char* a, const char* b);
int StrNICmp(const char* a, const char* b, size_t n);

// Decimal text in a static buffer, overwritten by the next call.
const char* NumStr(int n);

// --- templates ---
#include <cstdio>
template <size_t N> int PrintText(char (&dst)[N], const char* format, ...)
{
    va_list ap;
    va_start(ap, format);
    const int n = vsnprintf(dst, N, format, ap);
    va_end(ap);
    return n;
}
