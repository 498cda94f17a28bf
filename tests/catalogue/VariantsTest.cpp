// The rarer ways in which files of a type begin are found as that type.
#include <gtest/gtest.h>

#include <string>

#include "tests/catalogue/CorpusScan.h"

namespace vantor {
namespace {

struct Variant {
    RecoveryMode mode;
    const char* type;
    std::string begins;
};

std::string operator""_z(const char* text, std::size_t length) {
    return {text, length};
}

const Variant kVariants[] = {
    {kRawFileMode, "HTML", "<!-- saved by a browser -->"},
    {kRawFileMode, "HTML", "\n\n<!DOCTYPE html PUBLIC \"-//"},
    {kRawFileMode, "HTML", "\n<!DOCTYPE html>"},
    {kRawFileMode, "HTML", "\n\n\n<!DOCTYPE HTML PUBLIC"},
    {kRawFileMode, "HTML", "\n<html>"},
    {kRawFileMode, "HTML", "\r\n<HTML>"},
    {kRawFileMode, "HTML", "<Html>"},
    {kRawFileMode, "HTML", "<head>\n"},
    {kRawFileMode, "HTML", "<table border"},
    {kRawFileMode, "HTML", "\xEF\xBB\xBF<!DOCTYPE html>"},
    {kRawFileMode, "HTML", "\xFF\xFE<\0h\0"_z},
    {kPhotoMode, "SVG", "\xEF\xBB\xBF<svg "},
    {kPhotoMode, "SVG", "<!DOCTYPE svg PUBLIC"},
    {kPhotoMode, "SVG", "\n<svg "},
    {kRawFileMode, "SVG", "<svg:svg "},
    {kPhotoMode, "ICO", "\0\0\1\0\2\0\x28\x28"_z},
    {kPhotoMode, "ICO", "\0\0\1\0\x14\0\x30\x30"_z},
    {kPhotoMode, "ICO", "\0\0\1\0\4\0\0\0\0\0\0\0\x20\0"_z},
    {kPhotoMode, "CUR", "\0\0\2\0\6\0\x60\x60"_z},
    {kPhotoMode, "TGA", "\0\0\2\0\0\0\0\0\0\0\x38\4"_z},
    {kPhotoMode, "JLS", "\xFF\xD8\xFF\xF7\0\x0B\x08"_z},
    {kRawFileMode, "JXL", "\xFF\x0A\xBA\x12"},
    {kRawFileMode, "XBM", "#define a_width 16"},
    {kRawFileMode, "ICS", "BEGIN:VEVENT\r\n"},
    {kRawFileMode, "ICS", "\r\nBEGIN:VCALENDAR\r\n"},
    {kRawFileMode, "ICS",
     "\xEF\xBB\xBF"
     "BEGIN:VCALENDAR"},
    {kRawFileMode, "VCF", "BEGIN:vCard\r\n"},
    {kRawFileMode, "VCF",
     "\xEF\xBB\xBF"
     "BEGIN:VCARD"},
    {kRawFileMode, "SRT", "1\r\n00:02:16,612"},
    {kRawFileMode, "SRT",
     "\xEF\xBB\xBF"
     "1\r\n00:00:01"},
    {kRawFileMode, "EML", "MIME-Version: 1.0"},
    {kRawFileMode, "EML", "Subject: Re"},
    {kRawFileMode, "MBOX", "From someone@somewhere Fri"},
    {kRawFileMode, "PS", "%!\n% by hand"},
    {kRawFileMode, "GV", "digraph G {"},
    {kRawFileMode, "CSV", "sep=;\r\n"},
    {kRawFileMode, "TXT", "\xEF\xBB\xBFTo do"},
    {kRawFileMode, "TXT", "\xFF\xFET\0o\0"_z},
    {kRawFileMode, "LZMA", "\x5D\0\0\x10\0\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"_z},
    {kRawFileMode, "DBF",
     std::string("\3\x7E\x0B\x17\2\0\0\0\x41\0\6\0", 12) + std::string(20, '\0') +
         "NAME\0\0\0\0\0\0\0C\0\0\0\0\5"_z},
    {kRawFileMode, "DBF",
     std::string("\3\x7E\x0B\x17\2\0\0\0\x41\0\6\0", 12) + std::string(17, '\0') + "\x57\0\0NAME"_z},
    {kRawFileMode, "EAC3", "\x0B\x77\1\x7F\x34\x87"},
    {kRawFileMode, "AC3", "\x0B\x77\xC2\xEA\x54\x40\x43\xE1"},
    {kRawFileMode, "LATM", "\x56\xE1\x37\x20\0\x11\x90"_z},
    {kVideoMode, "MLV", "MLVI\x34\0\0\0v2.0"_z},
    {kRawFileMode, "IFO", "DVDVIDEO-VTS"},
    {kRawFileMode, "ULG", "ULog\1\x12\x35\1"},
    {kRawFileMode, "CTB", "\x86\0\xFD\x12\3\0\0\0"_z},
};

}  // namespace

TEST(Variants, AreFoundAsTheirType) {
    const ShippedRecords records;
    for (const Variant& variant : kVariants) {
        ScriptedMedium card(3);
        card.put(1, variant.begins, 0);
        const QStringList opened = typesFirstOpenedAt(scanCard(records, variant.mode, card), 1);
        EXPECT_EQ(opened, QStringList{QLatin1String(variant.type)}) << variant.type << ' ' << variant.begins;
    }
}

}  // namespace vantor
