#pragma once

#include <cstdarg>
#include <cstdio>

#include "vorn_std/base/Export.h"
#include "vorn_std/legacy/SFilePath.h"
#include "vorn_std/legacy/SWString.h"

// The free functions of the older flat interface. They report by their
// results (an empty text, 0, false) and do not throw, except the sprintf
// family, which throws what StringUtils::sprintfStringAppendVA throws.
// Reentrant, except GetOption and the process-wide folders, as noted there.
// File names go to the system as UTF-8 bytes.
namespace VornStd {

// ---- Fields and ranges

// Field number field (from 1; 0 or less means 1) of source, the fields
// being split at delimiter; the last field runs to the end. Answers the
// length of dest, which is empty (and the answer 0) when source has fewer
// fields.
VORNSTD_API int GetDelimField(SWString& dest, const SWString& source, int field, wchar_t delimiter);
// The same on text in the system's code page. At most size - 1 bytes of the
// field are copied, and dest is always terminated (unless size is below 1).
// Answers the number of bytes copied.
VORNSTD_API int GetDelimField(char* dest, int size, const char* source, int field, int delimiter);
// The number of delimiters in source, plus 1.
VORNSTD_API int NbrDelimFields(const SWString& source, wchar_t delimiter);
// length characters of source from position (counted from 1), fewer where
// source ends first: answers 1. A position of 0 or less or beyond the end,
// or a length of 0 or less, gives the empty dest and 0.
VORNSTD_API int GetPosField(SWString& dest, const SWString& source, int position, int length);

// Marks the numbers and ranges of text, such as "1-3,7", in array, which has
// maxIndex + 1 elements and is zeroed first: each number not above maxIndex
// sets its element to 1, and so does each value of a range "a-b" with a not
// above b. Anything but digits and "-" separates numbers. Answers the number
// of elements set, counting one set twice as often as it is set: "1-3" gives
// 5 (1, 3, then 1, 2, 3). Numbers that do not fit an int are ignored, and so
// are values below 0 (a text starting with "-" ranges from -1); nothing
// outside the array is touched.
VORNSTD_API int RangeStrToIntArr(const SWString& text, int* array, int maxIndex);

// ---- Command line

// Walks argv like getopt, with "-" or "/" as the switch character, one call
// at a time. Answers 0 at the end (argument null); 1 for an entry that is no
// switch (argument the entry); 65535 for a switch whose letter is not in
// optionString (argument the entry); the letter of a switch otherwise. A
// letter followed by ":" in optionString takes an argument: the rest of the
// entry, or else the next entry unless that is a switch (then argument is
// the empty rest and the switch is left for the next call). argument points
// into argv.
//
// The position is process-wide, starts at 1 and is never reset: one command
// line can be walked once per process, from one thread, and both forms walk
// it together.
VORNSTD_API int GetOption(int argc, wchar_t* argv[], const wchar_t* optionString,
                          wchar_t** argument);
VORNSTD_API int GetOption(int argc, char* argv[], const char* optionString, char** argument);

// ---- Text

// Each byte as a number ("%o " for base 8, "%x " for 16, "%u " for any
// other base), then the bytes between double quotes with "." for each that
// isprint() refuses. A length below 1 gives only the quotes.
VORNSTD_API SWString BufferDump(const char* data, int length, int base);
// The same for wide characters, with iswprint().
VORNSTD_API SWString BufferDump(const wchar_t* data, int length, int base);

// Reads one line of stream, line feed included, as text in the system's code
// page into string (which it replaces). Answers non-zero if it read
// anything, 0 at the end of the file.
VORNSTD_API int SWSfgets(SWString& string, FILE* stream);

// Remove white space on the right, in place; the left side stays.
VORNSTD_API char* TrimString(char* text);
VORNSTD_API wchar_t* TrimString(wchar_t* text);
VORNSTD_API SWString& TrimString(SWString& text);

// value as "%ld".
VORNSTD_API SWString Num2Str(long value);
// prefix and code, the code with four digits up to 9999 ("%04d"), as it is above.
VORNSTD_API SWString printErr(int code, const SWString& prefix);
// The system's text for the last error (errno), trimmed; "An unexpected
// error occurred." if the system has none.
VORNSTD_API SWString printLastErr();

// ---- Paths and files

// The file name and the folder of path, through SFilePath ("." without a
// folder). dest must hold the answer and its terminator: the length of path
// plus 2 is always enough. Both answer dest.
VORNSTD_API char* BaseName(char* dest, const char* path);
VORNSTD_API wchar_t* BaseName(wchar_t* dest, const wchar_t* path);
VORNSTD_API char* DirName(char* dest, const char* path);
VORNSTD_API wchar_t* DirName(wchar_t* dest, const wchar_t* path);

// Whether anything matches name, where "*" and "?" are wildcards.
VORNSTD_API bool FileExist(const SWString& name);
// A binary copy that replaces dest. A failed write removes dest. False on
// any failure, and for a source and dest that are one file.
VORNSTD_API bool FileCopy(const SWString& source, const SWString& dest);

// Results of CopyOver.
constexpr int CopyOverRenamed = 0;
constexpr int CopyOverCopied = 1;
constexpr int CopyOverFailed = -1;
// Replaces dest by source: removes dest and renames source, retrying for
// about 10 ms; if the rename will not do, copies source over dest and
// empties source. A dest that is a folder or has no write permission is not
// touched, and source is removed (the file is lost, as it always was).
// Failures write a debug line. A rename that keeps failing costs 15 ms of
// sleep before the copy.
VORNSTD_API int CopyOver(const SWString& source, const SWString& dest);

// ---- System

// Local time as "YYYY-MM-DD hh:mm:ss.mmm " (with the blank); empty if the
// time cannot be converted.
VORNSTD_API SWString GetCurrentTimestamp();
// Empty if it cannot be had.
VORNSTD_API SWString GetHostName();
// VornSystem::getOperatingSystemName(), or "Failed to get correct Operating
// System." if the release cannot be had.
VORNSTD_API SWString GetOSName();

// Process-wide values. Set them at start-up: they are guarded, but a caller
// that reads while another thread sets gets either value.
VORNSTD_API void SetVornDir(const SFilePath& directory);
VORNSTD_API SFilePath GetVornDir();
VORNSTD_API void SetAppSubDir(const SWString& directory);
VORNSTD_API SWString GetAppSubDir();

// ---- Formatting

// printf-style formatting: sprintfString replaces the text of out, the
// Append forms append to it. A wide format goes through
// StringUtils::sprintfStringAppendVA ("%ls" for a wide argument). A narrow
// format is formatted as narrow text ("%s" for a narrow argument, copied as
// it is), which then is read in the system's code page. Throw
// VornIllegalArgumentException for a null format or a failed conversion,
// leaving out as it was.
VORNSTD_API void sprintfString(SWString& out, const wchar_t* format, ...);
VORNSTD_API void sprintfString(SWString& out, const char* format, ...);
VORNSTD_API void sprintfStringVA(SWString& out, va_list args, const wchar_t* format);
VORNSTD_API void sprintfStringVA(SWString& out, va_list args, const char* format);
VORNSTD_API void sprintfStringAppend(SWString& out, const wchar_t* format, ...);
VORNSTD_API void sprintfStringAppend(SWString& out, const char* format, ...);
VORNSTD_API void sprintfStringAppendVA(SWString& out, va_list args, const wchar_t* format);
VORNSTD_API void sprintfStringAppendVA(SWString& out, va_list args, const char* format);

}  // namespace VornStd
