#include "loadedtext.h"

using namespace std::string_literals;
using support::lastErrorText;

namespace {

std::string declare(std::string_view encoding) {
    return "<?xml version=\"1.0\" encoding=\"" + std::string(encoding) + "\"?>";
}

/// ASCII as UTF-16 in either order.
std::string wide(std::string_view ascii, bool bigEndian) {
    std::string bytes;
    for (const char c : ascii)
        bytes += bigEndian ? std::string{'\0', c} : std::string{c, '\0'};
    return bytes;
}

KeshXmlMark markOfLast{};

std::string decode(std::string_view bytes) {
    std::string text = "untouched";
    const auto exact = std::make_unique<char[]>(bytes.size());
    bytes.copy(exact.get(), bytes.size());
    if (Kesh_DecodeXML({exact.get(), bytes.size()}, "u.xml", text, markOfLast) == 0) {
        EXPECT_EQ(text, "untouched");
        return "error " + std::to_string(Kesh_GetLastError());
    }
    EXPECT_EQ(Kesh_GetLastError(), KESH_OK);
    return text;
}

std::string encode(std::string_view text, KeshXmlMark mark = KESH_XML_AS_DECLARED) {
    std::string bytes;
    return Kesh_EncodeXML(text, mark, "u.xml", bytes) != 0
               ? bytes
               : "error " + std::to_string(Kesh_GetLastError());
}

TEST(XmlCodec, DecodesAndEncodesBack) {
    const std::string utf16 = declare("UTF-16");
    const std::string utf16big = declare("utf-16BE");
    const struct {
        std::string bytes;
        std::string text;
    } rows[] = {
        {"", ""},
        {"<a/>", "<a/>"},
        {"<a>\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80</a>",
         "<a>\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80</a>"},
        {declare("UTF-8") + "\r\n<a/>", declare("UTF-8") + "\r\n<a/>"},
        {declare("windows-1252") + "\xE4\x80\x9F\xFF", declare("windows-1252") + "ä€Ÿÿ"},
        {declare("ISO-8859-1") + "\xE4\x85", declare("ISO-8859-1") + "ä\xC2\x85"},
        {declare("us-ascii") + "<a/>", declare("us-ascii") + "<a/>"},
        {"\xFF\xFE" + wide(utf16, false) + "\xE4\0\xAC\x20\x3D\xD8\x00\xDE"s, utf16 + "ä€😀"},
        {"\xFE\xFF" + wide(utf16big, true) + "\0\xE4\x20\xAC\xD8\x3D\xDE\x00"s, utf16big + "ä€😀"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(decode(row.bytes), row.text);
        EXPECT_EQ(encode(row.text, markOfLast), row.bytes);
        EXPECT_EQ(encode(row.text), row.bytes) << "each of these can do without the mark";
        for (std::size_t size = 0; size < row.bytes.size(); ++size)
            static_cast<void>(decode(std::string_view(row.bytes).substr(0, size)));
    }
}

TEST(XmlCodec, AMarkTellsMoreThanTheDeclarationAndComesBack) {
    const struct {
        std::string mark;
        std::string content;
        std::string text;
    } rows[] = {
        {"\xEF\xBB\xBF", "<a/>", "<a/>"},
        {"\xEF\xBB\xBF", "\xEF\xBB\xBF<a/>", "\xEF\xBB\xBF<a/>"}, // only the first is a mark
        {"\xEF\xBB\xBF", declare("windows-1252") + "ä", declare("windows-1252") + "ä"},
        {"\xEF\xBB\xBF", declare("KOI8-R"), declare("KOI8-R")}, // not known, and not needed
        {"\xFF\xFE", wide(declare("UTF-8"), false), declare("UTF-8")},
        {"\xFF\xFE", wide("<a/>", false), "<a/>"},
        {"\xFE\xFF", wide("<a/>", true), "<a/>"},
        {"\xFE\xFF", wide(declare("UTF-16"), true), declare("UTF-16")},
        {"\xFE\xFF", wide(declare("utf-16le"), true), declare("utf-16le")},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(decode(row.mark + row.content), row.text);
        EXPECT_EQ(encode(row.text, markOfLast), row.mark + row.content);
    }
    EXPECT_EQ(encode("<a/>", static_cast<KeshXmlMark>(4)),
              "error " + std::to_string(KESH_E_ARGUMENT));
}

TEST(XmlCodec, DeclarationsInAnySpelling) {
    for (const std::string_view declaration :
         {"<?xml version='1.0' encoding='windows-1252'?>", "<?xml encoding = \"CP1252\" ?>",
          "<?xml version=\"1.0\"\r\n\tencoding\n=\n'Windows-1252' standalone='yes'?>"})
        EXPECT_EQ(decode(std::string(declaration) + "\x80"), std::string(declaration) + "€");
    // None of these names an encoding, so they are UTF-8.
    for (const std::string_view other :
         {"<?xml version='1.0'?>", "<?xml encoding?>", "<?xml encoding=cp1252?>",
          "<?xml encoding=", "<a encoding='cp1252'?>", "<?xml?><a encoding='cp1252'/>"})
        EXPECT_EQ(decode(std::string(other) + "ä"), std::string(other) + "ä");
}

TEST(XmlCodec, WhatAnEncodingLacksBecomesAReference) {
    EXPECT_EQ(encode(declare("windows-1252") + "ä€Ж😀\xC2\x81"),
              declare("windows-1252") + "\xE4\x80&#x416;&#x1F600;&#x81;");
    EXPECT_EQ(encode(declare("iso-8859-1") + "ÿ€"), declare("iso-8859-1") + "\xFF&#x20AC;");
    EXPECT_EQ(encode(declare("ascii") + "\x7Fä"), declare("ascii") + "\x7F&#xE4;");
}

TEST(XmlCodec, UndecodableBytesAreRefusedWithTheirPlace) {
    const struct {
        std::string bytes;
        std::string_view place;
    } rows[] = {
        {"<a>\n\xFF", "line 2 (offset 4)"},
        {"\xC3", "line 1 (offset 0)"},               // cut
        {"\r\r\n\n\x80", "line 4 (offset 4)"},       // continuation alone
        {"a\xC0\xAF", "(offset 1)"},                 // overlong
        {"\xE0\x9F\xBF", "(offset 0)"},              // overlong
        {"\xED\xA0\x80", "(offset 0)"},              // surrogate
        {"\xF4\x90\x80\x80", "(offset 0)"},          // above Unicode
        {"\xF8\x88\x80\x80\x80", "(offset 0)"},      // five bytes
        {"\xEF\xBB\xBF\xFF", "(offset 3)"},          // behind a mark
        {declare("cp1252") + "\x81", "(offset 39)"}, // not in that code page
        {declare("us-ascii") + "\xE4", "(offset 41)"},
        {declare("utf-16") + "<a/>", "(offset 0)"}, // no mark
        {"\xFF\xFE"
         "a",
         "(offset 2)"},                              // half a unit
        {"\xFF\xFE\x3D\xD8"s, "(offset 2)"},         // half a pair
        {"\xFF\xFE\x3D\xD8\x3D\xD8"s, "(offset 2)"}, // two first halves
        {"\xFE\xFF\xDE\x00"s, "(offset 2)"},         // second half alone
    };
    for (const auto& row : rows) {
        EXPECT_EQ(decode(row.bytes), "error " + std::to_string(KESH_E_DECODE));
        const std::string text = lastErrorText();
        EXPECT_NE(text.find(row.place), text.npos) << text;
        EXPECT_NE(text.find("u.xml"), text.npos) << text;
    }
    EXPECT_EQ(encode("<a>\xFF"), "error " + std::to_string(KESH_E_DECODE));
}

TEST(XmlCodec, UnknownEncodingsAndNulCharactersAreRefused) {
    EXPECT_EQ(decode(declare("KOI8-R")), "error " + std::to_string(KESH_E_ENCODING));
    EXPECT_NE(lastErrorText().find("KOI8-R"), std::string::npos);
    EXPECT_EQ(encode(declare("UTF-7")), "error " + std::to_string(KESH_E_ENCODING));
    EXPECT_EQ(decode("<a>\n\0</a>"s), "error " + std::to_string(KESH_E_NUL));
    EXPECT_NE(lastErrorText().find("line 2"), std::string::npos);
}

} // namespace
