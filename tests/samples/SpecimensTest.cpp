// The rarer kinds of file on the card say their own sizes, and what they pack comes out again.
#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>

#include <QXmlStreamReader>
#include <QtEndian>

#include "tests/samples/CardFixture.h"

namespace vantor::samples {
namespace {

std::int64_t le64(const QByteArray& bytes, qsizetype at) {
    return qFromLittleEndian<qint64>(bytes.constData() + at);
}
int be16(const QByteArray& bytes, qsizetype at) {
    return qFromBigEndian<quint16>(bytes.constData() + at);
}

TEST(CardRasters, HeadersSayHowManyPixelsFollow) {
    const QByteArray ras = bytesOf("MEADOW.RAS");
    EXPECT_EQ(be32(ras, 4) * be32(ras, 8) * 3, be32(ras, 16));
    EXPECT_EQ(32 + be32(ras, 16), ras.size());
    const QByteArray dds = bytesOf("LAVENDER.DDS");
    EXPECT_EQ(128 + le32(dds, 12) * le32(dds, 16) * 3, dds.size());
    const QByteArray ktx = bytesOf("LAKE.KTX");
    EXPECT_EQ(le32(ktx, 36) * le32(ktx, 40) * 3, le32(ktx, 64));
    EXPECT_EQ(68 + le32(ktx, 64), ktx.size());
    const QByteArray dpx = bytesOf("COSMOS.DPX");
    EXPECT_EQ(le32(dpx, 16), dpx.size());
    EXPECT_EQ(le32(dpx, 4) + le32(dpx, 772) * le32(dpx, 776) * 3, dpx.size());
    const QByteArray lbm = bytesOf("BALLOONS.LBM");
    EXPECT_EQ(be32(lbm, 4) + 8, lbm.size());
    EXPECT_EQ(48 + be16(lbm, 20) / 8 * 24 * be16(lbm, 22), lbm.size());
    EXPECT_EQ(bytesOf("NIGHT.FITS").size(), 2880 + (240 * 180 + 2879) / 2880 * 2880);
    const QByteArray psb = bytesOf("DAISIES.PSB");
    EXPECT_EQ(26 + 18 + be32(psb, 14) * be32(psb, 18) * 3, psb.size());
}

TEST(CardRasters, TextHeadersEndWhereThePixelsBegin) {
    const auto behind = [](const char* name, const char* mark) {
        const QByteArray bytes = bytesOf(name);
        return bytes.size() - bytes.indexOf(mark) - qsizetype(qstrlen(mark));
    };
    EXPECT_EQ(behind("BAY.PAM", "ENDHDR\n"), 200 * 150 * 3);
    EXPECT_EQ(behind("ROCKS.PFM", "\n-1.000000\n"), 160 * 120 * 12);
    EXPECT_EQ(behind("AURORA.HDR", "-Y 150 +X 200\n"), 200 * 150 * 4);
    EXPECT_EQ(behind("AUTUMN.MIFF", ":\x1A"), 160 * 120 * 3);
    EXPECT_EQ(behind("MOV_0013.Y4M", "XYSCSS=444\n"), 3 * (6 + 96 * 72 * 3));
}

TEST(CardRasters, KindsThatQtReads_DecodeToTheirSizes) {
    EXPECT_EQ(decoded(bytesOf("RIDGES.PBM")).size(), QSize(400, 300));
    EXPECT_EQ(decoded(bytesOf("DAISY.CUR")).size(), QSize(32, 32));
    const QByteArray jng = bytesOf("SAIL.JNG");
    const qsizetype data = jng.indexOf("JDAT");
    ASSERT_GT(data, 0);
    EXPECT_EQ(decoded(jng.mid(data + 4, be32(jng, data - 4))).size(), QSize(400, 300));
    EXPECT_EQ(checksum(jng.mid(data, be32(jng, data - 4) + 4)), be32(jng, data + 4 + be32(jng, data - 4)));
}

TEST(CardRasters, FaxPages_StandWhereTheTableSays) {
    const QByteArray dcx = bytesOf("FOREST.DCX");
    ASSERT_EQ(le32(dcx, 12), 0);
    for (const qsizetype page : {le32(dcx, 4), le32(dcx, 8)}) {
        EXPECT_EQ(dcx.mid(page, 4), QByteArray::fromHex("0A050108"));
    }
}

TEST(CardRareSounds, SayTheirOwnSizes) {
    const QByteArray rf64 = bytesOf("TUNE.RF64");
    EXPECT_EQ(le64(rf64, 20) + 8, rf64.size());
    EXPECT_EQ(rf64.indexOf("data") + 8 + le64(rf64, 28), rf64.size());
    const QByteArray w64 = bytesOf("TUNE.W64");
    EXPECT_EQ(le64(w64, 16), w64.size());
    const QByteArray amiga = bytesOf("TUNE.8SVX");
    EXPECT_EQ(be32(amiga, 4) + 8, amiga.size());
    EXPECT_EQ(be32(amiga, 44) + 48, amiga.size());
    const QByteArray rmi = bytesOf("TUNE.RMI");
    EXPECT_EQ(le32(rmi, 4) + 8, rmi.size());
    EXPECT_EQ(rmi.mid(20, 4), "MThd");
    EXPECT_EQ((bytesOf("SILENCE.AWB").size() - 9) % 18, 0);
    EXPECT_EQ(bytesOf("TUNE.SPH").mid(8, 8), "   1024\n");
}

// What libarchive finds in a file packed by one filter.
QByteArray unpacked(const char* name) {
    const QByteArray packed = bytesOf(name);
    archive* file = archive_read_new();
    archive_read_support_filter_all(file);
    archive_read_support_format_raw(file);
    archive_entry* entry = nullptr;
    QByteArray out(10000, '\0');
    la_ssize_t size = 0;
    if (archive_read_open_memory(file, packed.constData(), size_t(packed.size())) == ARCHIVE_OK &&
        archive_read_next_header(file, &entry) == ARCHIVE_OK)
        size = archive_read_data(file, out.data(), size_t(out.size()));
    archive_read_free(file);
    return out.left(size);
}

TEST(CardRareArchives, PackedContent_ComesOutUnchanged) {
    const QByteArray text = bytesOf("NOTES.TXT");
    ASSERT_GT(text.size(), 1000);
    for (const char* name : {"NOTES.GZ", "NOTES.XZ", "NOTES.LZ4", "NOTES.ZST"})
        EXPECT_EQ(unpacked(name), text) << name;
    const QByteArray lzh = bytesOf("NOTES.LZH");
    EXPECT_EQ(lzh.mid(2 + static_cast<std::uint8_t>(lzh[0]), le32(lzh, 7)), text);
}

TEST(CardRareArchives, UnixPackage_HoldsItsThreeMembers) {
    const QByteArray deb = bytesOf("NOTES.DEB");
    QList<QByteArray> names;
    for (qsizetype at = 8; at + 60 <= deb.size();) {
        names << deb.mid(at, 16).trimmed();
        const qsizetype size = deb.mid(at + 48, 10).trimmed().toLongLong();
        at += 60 + size + size % 2;
    }
    EXPECT_EQ(names, QList<QByteArray>({"debian-binary/", "control.tar/", "data.tar/"}));
}

TEST(CardRareData, RecordsReachToTheEnd) {
    const QByteArray shape = bytesOf("PLACES.SHP");
    EXPECT_EQ(be32(shape, 24) * 2, shape.size());
    const QByteArray capture = bytesOf("QUIET.PCAP");
    qsizetype at = 24;
    while (at + 16 <= capture.size())
        at += 16 + le32(capture, at + 8);
    EXPECT_EQ(at, capture.size());
    const QByteArray numbers = bytesOf("SQUARES.NPY");
    EXPECT_EQ(10 + le16(numbers, 8) + 256 * 4, numbers.size());
    EXPECT_EQ((10 + le16(numbers, 8)) % 64, 0);
    const QByteArray program = bytesOf("ANSWER.WASM");
    at = 8;
    while (at + 2 <= program.size())
        at += 2 + program[at + 1];
    EXPECT_EQ(at, program.size());
    const QByteArray web = bytesOf("PAGES.WARC");
    const qsizetype length = web.indexOf("Content-Length: ") + 16;
    const qsizetype page = web.indexOf("\r\n\r\n") + 4;
    EXPECT_EQ(page + web.mid(length, web.indexOf('\r', length) - length).toLongLong() + 4, web.size());
}

TEST(CardTexts, XmlKinds_AreWellFormed) {
    for (const char* name : {"NEWS.RSS", "NEWS.ATOM", "NEWS.OPML", "TUNES.XSPF", "BOOK.FB2", "NOTES.FODT",
                             "NOTES.ENEX", "BOAT.TTML", "FORM.UI"}) {
        QXmlStreamReader reader(bytesOf(name));
        int elements = 0;
        while (!reader.atEnd())
            elements += reader.readNext() == QXmlStreamReader::StartElement;
        EXPECT_FALSE(reader.hasError()) << name << qPrintable(reader.errorString());
        EXPECT_GE(elements, 2) << name;
    }
}

}  // namespace
}  // namespace vantor::samples
