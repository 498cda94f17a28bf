// One document and one archive of each kind.
#include "samples/Archives.h"
#include "samples/CardContents.h"
#include "samples/DataFiles.h"
#include "samples/Deflate.h"
#include "samples/Documents.h"
#include "samples/ListedTexts.h"
#include "samples/Scenes.h"

namespace vantor::samples {

namespace {

void add(std::vector<CardFile>& files, const char* folder, const char* name, const QByteArray& bytes,
         Gap gap = Gap::None, std::int64_t clusters = 0) {
    files.push_back(
        {QString::fromLatin1(folder), QString::fromLatin1(name), bytes, gap, clusters, Pieces::One});
}

}  // namespace

void addDocuments(std::vector<CardFile>& files) {
    constexpr const char* kFolder = "DOCS";
    add(files, kFolder, "ALBUM.PDF", pdfFile(sceneNamed("seaSunset").paint(640, 480)), Gap::Zeros, 2);
    add(files, kFolder, "DRAWING.EPS", postScriptFile());
    add(files, kFolder, "NOTES.RTF", rtfFile());
    add(files, kFolder, "NOTES.DOCX", docxFile(), Gap::Noise, 1);
    add(files, kFolder, "SQUARES.XLSX", xlsxFile());
    add(files, kFolder, "TALK.PPTX", pptxFile());
    add(files, kFolder, "NOTES.ODT", odtFile());
    add(files, kFolder, "SQUARES.ODS", odsFile());
    add(files, kFolder, "TALK.ODP", odpFile());
    add(files, kFolder, "BOOK.EPUB", epubFile(), Gap::Zeros, 1);
    add(files, kFolder, "NOTES.TXT", textFile());
    add(files, kFolder, "PLACES.CSV", csvFile());
    add(files, kFolder, "NOTES.HTML", htmlFile());
    add(files, kFolder, "PLACES.XML", xmlFile());
    add(files, kFolder, "DRAWING.SVG", svgFile());
    add(files, kFolder, "TRACK.GPX", gpxFile());
    add(files, kFolder, "PLACES.KML", kmlFile());
    add(files, kFolder, "DAYS.ICS", icsFile());
    add(files, kFolder, "HARBOUR.VCF", vcfFile());
    add(files, kFolder, "LETTER.EML", emlFile());
    add(files, kFolder, "PLACES.SQLITE", sqliteFile(), Gap::Noise, 2);
    add(files, kFolder, "PLACES.DBF", dbfFile());
    for (const auto& texts : {listedTexts(), drawnTexts(), markedUpTexts()})
        for (const TextSpecimen& text : texts)
            add(files, kFolder, text.name, text.bytes);
    add(files, kFolder, "SQUARES.NPY", npyFile());
    add(files, kFolder, "PLACES.SHP", shapeFile());
}

void addArchives(std::vector<CardFile>& files) {
    constexpr const char* kFolder = "ARCHIVES";
    const std::vector<ArchiveMember> members = {
        {"notes.txt", textFile()}, {"places.csv", csvFile()}, {"track.gpx", gpxFile(), Packing::Stored}};
    add(files, kFolder, "NOTES.ZIP", zipFile(members), Gap::Zeros, 1);
    add(files, kFolder, "NOTES.TAR", tarFile(members));
    add(files, kFolder, "NOTES.GZ", gzipFile(textFile(), "notes.txt"));
    add(files, kFolder, "NOTES.TGZ", gzipFile(tarFile(members), "notes.tar"));
    add(files, kFolder, "NOTES.XZ", xzFile(textFile()), Gap::Noise, 1);
    add(files, kFolder, "NOTES.7Z", sevenZipFile(members));
    add(files, kFolder, "NOTES.CAB", cabFile(members));
    add(files, kFolder, "NOTES.AR", arFile(members));
    add(files, kFolder, "NOTES.CPIO", cpioFile(members));
    add(files, kFolder, "NOTES.LZ4", lz4File(textFile()), Gap::Zeros, 1);
    add(files, kFolder, "NOTES.ZST", zstdFile(textFile()));
    add(files, kFolder, "NOTES.LZH", lhaFile(members));
    add(files, kFolder, "NOTES.DEB", debFile(members));
    add(files, kFolder, "NOTES.JAR",
        zipFile({{"META-INF/MANIFEST.MF", "Manifest-Version: 1.0\n"}, members[0]}));
    add(files, kFolder, "PLACES.KMZ", zipFile({{"doc.kml", kmlFile()}}));
    add(files, kFolder, "PAGES.WARC", warcFile());
    add(files, kFolder, "NOTES.TORRENT", torrentFile());
    add(files, kFolder, "QUIET.PCAP", pcapFile());
    add(files, kFolder, "ANSWER.WASM", wasmFile(), Gap::Noise, 1);
}

}  // namespace vantor::samples
