// The documents that are text.
#include "samples/Documents.h"

namespace vantor::samples {

namespace {

const QByteArray kStory =
    "We left the harbour at ten with a light wind from the west. By noon the bay lay flat as glass, and the "
    "boat "
    "with the white sail drifted more than it sailed. In the evening the sun went down behind the hills, and "
    "we "
    "took the last photo of the day.";

const char* const kDays[] = {"Harbour",    "Lavender fields", "Alpine lake",
                             "Lighthouse", "Old town",        "Autumn wood"};
constexpr int kDayCount = 6;

QByteArray dayNumber(int day) {
    return QByteArray::number(day + 1).rightJustified(2, '0');
}

}  // namespace

QByteArray textFile() {
    QByteArray text = "Holiday notes, June 2024\n========================\n\n";
    for (int day = 0; day < kDayCount; ++day)
        text += QByteArray::number(day + 1) + ". " + kDays[day] + "\n\n" + kStory + "\n\n";
    return text;
}

QByteArray csvFile() {
    QByteArray text = "day,place,photos,kilometres\r\n";
    for (int day = 0; day < kDayCount; ++day)
        text += "2024-06-" + dayNumber(day) + "," + kDays[day] + "," + QByteArray::number(12 + day * 7 % 11) +
                "," + QByteArray::number(5 + day * 13 % 29) + "\r\n";
    return text;
}

QByteArray htmlFile() {
    QByteArray text =
        "<!DOCTYPE html>\n<html lang=\"en\">\n<head><meta "
        "charset=\"utf-8\"><title>Holiday</title></head>\n<body>\n<h1>Holiday</h1>\n";
    for (int day = 0; day < kDayCount; ++day)
        text += QByteArray("<h2>") + kDays[day] + "</h2>\n<p>" + kStory + "</p>\n";
    return text + "</body>\n</html>\n";
}

QByteArray xmlFile() {
    QByteArray text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<holiday year=\"2024\">\n";
    for (int day = 0; day < kDayCount; ++day)
        text += "  <day date=\"2024-06-" + dayNumber(day) + "\"><place>" + kDays[day] + "</place></day>\n";
    return text + "</holiday>\n";
}

QByteArray gpxFile() {
    QByteArray text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<gpx version=\"1.1\" creator=\"vantor\" "
        "xmlns=\"http://www.topografix.com/GPX/1/1\">\n  <trk><name>Round the bay</name><trkseg>\n";
    for (int i = 0; i < 40; ++i)
        text += "    <trkpt lat=\"43." + QByteArray::number(70000 + i * 37) + "\" lon=\"7." +
                QByteArray::number(31000 + i * i % 900) + "\"><ele>" + QByteArray::number(4 + i * 3) +
                "</ele></trkpt>\n";
    return text + "  </trkseg></trk>\n</gpx>\n";
}

QByteArray kmlFile() {
    QByteArray text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<kml "
        "xmlns=\"http://www.opengis.net/kml/2.2\"><Document>\n";
    for (int day = 0; day < kDayCount; ++day)
        text += QByteArray("  <Placemark><name>") + kDays[day] + "</name><Point><coordinates>7." +
                QByteArray::number(31 + day) + ",43." + QByteArray::number(70 - day) +
                "</coordinates></Point></Placemark>\n";
    return text + "</Document></kml>\n";
}

QByteArray svgFile() {
    QByteArray text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"640\" "
        "height=\"480\" viewBox=\"0 0 640 480\">\n";
    text +=
        "  <rect width=\"640\" height=\"300\" fill=\"#fcb96e\"/>\n  <circle cx=\"420\" cy=\"240\" r=\"60\" "
        "fill=\"#fff3cf\"/>\n";
    text +=
        "  <path d=\"M0 300 Q160 180 320 290 T640 260 V480 H0 Z\" fill=\"#7a4a78\"/>\n  <rect y=\"320\" "
        "width=\"640\" height=\"160\" fill=\"#34547c\"/>\n";
    for (int i = 0; i < 8; ++i)
        text += "  <path d=\"M" + QByteArray::number(i * 80) + " " + QByteArray::number(345 + i * 14) +
                " q20 -10 40 0 t40 0\" stroke=\"#9fc3dd\" fill=\"none\" stroke-width=\"3\"/>\n";
    return text +
           "  <path d=\"M180 360 l60 0 l-12 18 h-36 z M208 356 v-90 l40 84 z\" fill=\"#fffaf0\"/>\n</svg>\n";
}

QByteArray rtfFile() {
    QByteArray text = "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Helvetica;}}\n{\\b\\fs36 Holiday notes}\\par\n";
    for (int day = 0; day < kDayCount; ++day)
        text += QByteArray("{\\b ") + kDays[day] + "}\\par\n" + kStory + "\\par\n";
    return text + "}\n";
}

QByteArray icsFile() {
    QByteArray text = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Vantor//Sample Card//EN\r\n";
    for (int day = 0; day < kDayCount; ++day)
        text += "BEGIN:VEVENT\r\nUID:day" + dayNumber(day) +
                "@example.org\r\nDTSTAMP:20240601T100000Z\r\nDTSTART;VALUE=DATE:202406" + dayNumber(day) +
                "\r\nSUMMARY:" + kDays[day] + "\r\nEND:VEVENT\r\n";
    return text + "END:VCALENDAR\r\n";
}

QByteArray vcfFile() {
    return "BEGIN:VCARD\r\nVERSION:3.0\r\nN:Harbour;Office;;;\r\nFN:Harbour Office\r\nTEL;TYPE=WORK:+00 000 "
           "0000\r\nEMAIL:harbour@example.org\r\nEND:VCARD\r\n";
}

QByteArray emlFile() {
    return "From: A Traveller <traveller@example.org>\r\nTo: Harbour Office "
           "<harbour@example.org>\r\nSubject: Our stay\r\n"
           "Date: Sat, 1 Jun 2024 10:00:00 +0000\r\nMessage-ID: <1@example.org>\r\nMIME-Version: 1.0\r\n"
           "Content-Type: text/plain; charset=utf-8\r\n\r\n" +
           kStory + "\r\n";
}

QByteArray postScriptFile() {
    QByteArray text =
        "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 320 240\n%%EndComments\n0.99 0.73 0.43 setrgbcolor 0 0 "
        "320 240 rectfill\n";
    text +=
        "1 0.95 0.8 setrgbcolor 210 120 30 0 360 arc fill\n0.2 0.33 0.5 setrgbcolor 0 0 320 80 rectfill\n";
    return text +
           "1 1 1 setrgbcolor 90 60 moveto 90 140 lineto 130 66 lineto closepath fill\nshowpage\n%%EOF\n";
}

}  // namespace vantor::samples
