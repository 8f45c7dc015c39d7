#pragma once

#include <memory>
#include <string>

#include "vorn_std/base/Export.h"

namespace vorn_std {

class ByteArray;
class ByteBuffer;

// The façade over the library's encodings: code pages, UTF-8, Base64, and
// bytes as hex or as decimal numbers joined by "-". Reentrant. Nothing throws
// but the ByteBuffer forms, with allocate's exception for more bytes than a
// buffer may hold.
//
// Code pages: 1252, 1251, 932, 936, 949, 950, 65001, and 0 for the system's
// own, which here is the environment's locale charset (UTF-8 under the C
// locale). Both directions stop at the first zero; a character that does not
// convert becomes '?'; an unknown code page gives the empty string.
//
// The forms that read a ByteBuffer read it from position to limit and leave
// the position where it was; they use the mark, so a mark set before is lost.
class VORNSTD_API EncodingUtils {
public:
    EncodingUtils() = delete;

    static constexpr const wchar_t* DelimiteredEncoding = L"DelimiteredEncoding";

    static std::string convertUnicodeToMbcs(const std::wstring& text, unsigned int codePage);
    static std::wstring convertMbcsToUnicode(const std::string& bytes, unsigned int codePage);
    static std::string convertUnicodeToUtf8(const std::wstring& text);
    static std::wstring convertUtf8ToUnicode(const std::string& bytes);
    static std::string convertMbcsToBase64(const std::string& bytes);
    static std::string convertBase64ToMbcs(const std::string& text);

    // Exactly "ISO-10646-UCS-2", "UTF-8" and "windows-1252", case included.
    static bool isValidCharacterSet(const std::wstring& name);
    // The code page of a product language such as "Japanese" (932); 0 for a
    // name the table does not hold. The table is built on first use.
    static unsigned int languageToCodePage(const std::wstring& language);
    static bool isLoaded();

    // Two upper-case hex digits per byte.
    static std::wstring toHexString(const ByteArray& bytes);
    static std::wstring toHexString(ByteBuffer& bytes);
    // Null for the empty text or an odd length. "0"-"9" and "A"-"F" have their
    // values; any other character, a lower-case hex digit too, counts as 0.
    static std::shared_ptr<ByteArray> hexStringToByteArray(const std::wstring& text);
    static std::shared_ptr<ByteArray> hexStringToByteArray(const std::string& text);
    // A buffer ready for reading, or null as above.
    static std::shared_ptr<ByteBuffer> hexStringToByteBuffer(const std::wstring& text);
    static std::shared_ptr<ByteBuffer> hexStringToByteBuffer(const std::string& text);

    // Unsigned decimal numbers joined by "-".
    static std::wstring toDelimString(const ByteArray& bytes);
    static std::wstring toDelimString(ByteBuffer& bytes);
    // Null for the empty text. Each number keeps its low 8 bits ("300" gives
    // 44); empty numbers between two "-" are skipped. Any character other than
    // a digit or "-" writes a debug line and gives an empty array (or buffer).
    static std::shared_ptr<ByteArray> delimStringToByteArray(const std::wstring& text);
    static std::shared_ptr<ByteArray> delimStringToByteArray(const std::string& text);
    static std::shared_ptr<ByteBuffer> delimStringToByteBuffer(const std::wstring& text);
    static std::shared_ptr<ByteBuffer> delimStringToByteBuffer(const std::string& text);

    // The delimited form for DelimiteredEncoding, the hex form for any other name.
    static std::wstring encodeString(const ByteArray& bytes, const std::wstring& encoding);
    static std::shared_ptr<ByteArray> decodeString(const std::wstring& text,
                                                   const std::wstring& encoding);

    // The value as an unsigned decimal number: -1 gives "18446744073709551615".
    static std::wstring toStringFromLongLong(long long value);
};

}  // namespace vorn_std
