// Lists, subtitles, mail, games and notes, each with the first words that tell it.
#include "samples/ListedTexts.h"

namespace vantor::samples {

namespace {

QByteArray lines(std::initializer_list<const char*> texts, const char* end = "\n") {
    QByteArray all;
    for (const char* text : texts)
        all += QByteArray(text) + end;
    return all;
}

QByteArray subtitles() {
    QByteArray text;
    for (int i = 0; i < 9; ++i) {
        const QByteArray n = QByteArray::number(i);
        text += QByteArray::number(i + 1) + "\r\n00:00:0" + n + ",000 --> 00:00:0" + n +
                ",900\r\nThe boat sails by.\r\n\r\n";
    }
    return text;
}

QByteArray mailbox() {
    QByteArray text;
    for (int i = 1; i < 4; ++i)
        text += "From - Sat Jun 01 10:00:0" + QByteArray::number(i) +
                " 2024\nFrom: A Traveller <traveller@example.org>\nSubject: Day " + QByteArray::number(i) +
                "\n\nWe are well.\n\n";
    return text;
}

}  // namespace

std::vector<TextSpecimen> listedTexts() {
    return {
        {"TUNES.M3U", lines({"#EXTM3U", "#EXTINF:6,Tune", "TUNE.WAV", "#EXTINF:3,Notes", "TUNE.MID"})},
        {"TUNES.PLS", lines({"[playlist]", "File1=TUNE.WAV", "NumberOfEntries=1", "Version=2"})},
        {"DISC.CUE", lines({"FILE \"TUNE.WAV\" WAVE", "  TRACK 01 AUDIO", "    INDEX 01 00:00:00"}, "\r\n")},
        {"DISC.CCD", lines({"[CloneCD]", "Version=3", "[Disc]", "TocEntries=4", "Sessions=1"}, "\r\n")},
        {"BOAT.SRT", subtitles()},
        {"BOAT.VTT", lines({"WEBVTT", "", "00:00.000 --> 00:02.000", "The boat sails by."})},
        {"BOAT.ASS", lines({"[Script Info]", "ScriptType: v4.00+", "", "[Events]", "Format: Start, End, Text",
                            "Dialogue: 0:00:00.00,0:00:02.00,The boat"})},
        {"BOAT.SUB", lines({"{1}{1}10", "{1}{20}The boat sails by.", "{21}{40}The sun goes down."})},
        {"BOAT.SMI",
         lines({"<SAMI>", "<BODY>", "<SYNC Start=0><P Class=ENCC>The boat", "</BODY>", "</SAMI>"})},
        {"PEOPLE.LDIF", lines({"version: 1", "dn: cn=Harbour Office,o=Example", "objectClass: person",
                               "cn: Harbour Office", "sn: Office"})},
        {"LETTERS.MBOX", mailbox()},
        {"PAGE.MHT", lines({"From: <Saved by a sample>", "Subject: Holiday", "MIME-Version: 1.0",
                            "Content-Type: text/html", "", "<html><body>Holiday</body></html>"},
                           "\r\n")},
        {"NOTES.TEX",
         lines({"\\documentclass{article}", "\\begin{document}", "Holiday notes", "\\end{document}"})},
        {"NOTES.ORG", lines({"#+TITLE: Holiday notes", "* Harbour", "We left at ten.", "* Lake"})},
        {"NOTES.IPYNB", lines({"{", " \"cells\": [],", " \"metadata\": {},", " \"nbformat\": 4,",
                               " \"nbformat_minor\": 5", "}"})},
        {"BOOKS.RIS", lines({"TY  - BOOK", "TI  - The harbour", "PY  - 2024", "ER  - "})},
        {"MONEY.QIF", lines({"!Type:Bank", "D06/01/2024", "T-12.50", "PHarbour Office", "^"})},
        {"MONEY.OFX", lines({"OFXHEADER:100", "DATA:OFXSGML", "VERSION:102", "", "<OFX>", "</OFX>"})},
        {"HOME.URL", lines({"[InternetShortcut]", "URL=http://example.org/"}, "\r\n")},
        {"SETUP.REG",
         lines({"REGEDIT4", "", "[HKEY_CURRENT_USER\\Software\\Sample]", "\"Boat\"=\"white\""}, "\r\n")},
        {"STYLE.CSS", lines({"@charset \"utf-8\";", "body { color: #335; }", "h1 { font-size: 2em; }"})},
        {"CHANGE.DIFF", lines({"diff --git a/notes.txt b/notes.txt", "--- a/notes.txt", "+++ b/notes.txt",
                               "@@ -1 +1 @@", "-ten", "+eleven"})},
        {"WORDS.PO", lines({"msgid \"\"", "msgstr \"Content-Type: text/plain; charset=UTF-8\\n\"", "",
                            "msgid \"boat\"", "msgstr \"Boot\""})},
        {"GAME.PGN",
         lines({"[Event \"Harbour\"]", "[Result \"1-0\"]", "", "1. e4 e5 2. Qh5 Ke7 3. Qxe5# 1-0"})},
        {"GAME.SGF", "(;GM[1]FF[4]SZ[9];B[ee];W[ce];B[gg])\n"},
        {"RING.IMY",
         lines({"BEGIN:IMELODY", "VERSION:1.2", "FORMAT:CLASS1.0", "MELODY:c2d2e2f2g2", "END:IMELODY"},
               "\r\n")},
    };
}

}  // namespace vantor::samples
