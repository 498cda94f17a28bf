// What is on the card: a holiday's photos, and a file of every other kind.
#include <QHash>

#include "samples/Bytes.h"
#include "samples/Card.h"
#include "samples/Documents.h"
#include "samples/Encoding.h"
#include "samples/Pictures.h"
#include "samples/Scenes.h"

namespace vantor::samples {

namespace {

using Content = std::function<QByteArray()>;

// The files of one folder, under way.
class Folder {
  public:
    Folder(std::vector<CardFile>& files, const char* name) : m_files(files), m_name(name) {}
    void add(const QByteArray& name, Content content, Gap gap = Gap::None, int gapClusters = 0) {
        m_files.push_back({m_name, QString::fromLatin1(name), std::move(content), gap, gapClusters});
    }

  private:
    std::vector<CardFile>& m_files;
    QString m_name;
};

// What writes a photo's JPEG: Qt's plug-in, or libav's encoder with full chroma or with restart marks.
enum class Writer { Plain, Progressive, FullChroma, Restarting };
enum class Notes { Jfif, Exif, ExifTurned };

struct Photo {
    Scene* scene;
    int width;
    int height;
    Notes notes;
    QRgb laterLight = 0;  // of a motif that was taken twice; 0 the first time
    Writer writer = Writer::Plain;
    int quality = 88;
    Gap gap = Gap::None;
    int gapClusters = 0;
};

constexpr Photo kPhotos[] = {
    {seaSunset, 2048, 1536, Notes::Exif},
    {lavenderRows, 1600, 1200, Notes::Exif},
    {sunflower, 1600, 1200, Notes::Exif},
    {alpineLake, 2048, 1365, Notes::Exif, 0, Writer::Plain, 90, Gap::Zeros, 3},
    {balloons, 1600, 1200, Notes::Exif},
    {meadow, 1200, 1600, Notes::Exif},
    {blueRidges, 1600, 1067, Notes::Exif, 0, Writer::FullChroma},
    {rainbowHills, 1600, 1200, Notes::Exif, 0, Writer::Plain, 88, Gap::Noise, 5},
    {starryNight, 1600, 1067, Notes::Exif},
    {meadow, 1600, 1200, Notes::Exif},
    {citySkyline, 1600, 1067, Notes::Exif},
    {pinkCosmos, 1280, 960, Notes::Exif, 0, Writer::FullChroma, 92, Gap::Zeros, 1},
    {autumnLake, 1600, 1200, Notes::Exif},
    {pinkRidges, 1600, 1067, Notes::Exif},
    {daisies, 960, 1280, Notes::ExifTurned},
    {aurora, 1600, 1067, Notes::Exif},
    {seaSunset, 1280, 960, Notes::Exif, 0xFFB4A0, Writer::Plain, 88, Gap::Noise, 12},
    {lilacBay, 1280, 960, Notes::Exif},
    {fireworks, 1600, 1200, Notes::Exif},
    {mistyForest, 1280, 960, Notes::Exif},
    {lilacBay, 1280, 960, Notes::Jfif, 0xFFE6B4},
    {mistyForest, 1280, 960, Notes::Jfif, 0xFFD2AA, Writer::FullChroma},
    {alpineLake, 1280, 960, Notes::Jfif, 0xFFD8B8, Writer::Progressive, 88, Gap::Zeros, 8},
    {blueRidges, 1280, 853, Notes::Jfif, 0xFFDCC0, Writer::Restarting},
    {autumnLake, 1280, 960, Notes::Jfif, 0xFFCFA0},
    {balloons, 1024, 768, Notes::Jfif, 0xFFC8A0, Writer::Restarting},
    {sunflower, 1024, 768, Notes::Jfif, 0xFFE0B8, Writer::Plain, 92},
    {citySkyline, 1280, 960, Notes::Jfif, 0xFFD0E8, Writer::Restarting, 88, Gap::Noise, 4},
};

QByteArray jpegFile(const QImage& picture, Writer writer, int quality) {
    const QByteArray fine = "aspect=1:flags=+qscale:global_quality=354";  // 3 on the scale of 2 to 31
    if (writer == Writer::FullChroma)
        return encodedPicture("mjpeg", "yuvj444p", picture, fine);
    if (writer == Writer::Restarting)
        return encodedPicture("mjpeg", "yuvj420p", picture, fine + ":threads=4:thread_type=slice:slices=4");
    return writtenByQt("jpg", picture, quality, writer == Writer::Progressive);
}

QByteArray photoFile(const Photo& plan, int number) {
    QImage picture = painted(plan.scene, plan.width, plan.height);
    if (plan.laterLight != 0)
        picture = seenAgain(picture, QColor(plan.laterLight));
    if (plan.notes == Notes::ExifTurned)
        picture = picture.transformed(QTransform().rotate(-90));
    const QByteArray jpeg = jpegFile(picture, plan.writer, plan.quality);
    if (plan.notes == Notes::Jfif)
        return jpeg;
    const auto digits = [](int value) { return QByteArray::number(value).rightJustified(2, '0'); };
    const QByteArray takenAt = "2024:06:" + digits(1 + number / 2) + ' ' + digits(10 + number % 9) + ':' +
                               digits(number * 7 % 60) + ":00";
    return withExif(jpeg, picture, takenAt, plan.notes == Notes::ExifTurned);
}

void addPhotos(std::vector<CardFile>& files) {
    Folder folder(files, "DCIM/100VANTR");
    int number = 0;
    for (const Photo& plan : kPhotos) {
        ++number;
        folder.add(
            "IMG_" + QByteArray::number(number).rightJustified(4, '0') + ".JPG",
            [&plan, number] { return photoFile(plan, number); }, plan.gap, plan.gapClusters);
    }
    files.back().inTwoPieces = true;
}

// The boat sails all its way, and the sun goes down unless it stands still at a share of its own.
std::vector<QImage> sunset(int count, int width, int height, double stillAt = -1) {
    std::vector<QImage> frames;
    for (double share = 0; frames.size() < size_t(count); share += 1.0 / (count - 1))
        frames.push_back(sunsetAt(width, height, stillAt < 0 ? share : stillAt, share));
    return frames;
}

// Ways to write a motif.
Content byQt(const char* format, Scene* scene, int width, int height, int quality = -1) {
    return [=] { return writtenByQt(format, painted(scene, width, height), quality); };
}
Content byLibav(const char* codec, const char* pixels, Scene* scene, int width, int height,
                const char* options = "") {
    return [=] { return encodedPicture(codec, pixels, painted(scene, width, height), options); };
}
template <typename Write>
Content by(Write write, Scene* scene, int width, int height) {
    return [=] { return write(painted(scene, width, height)); };
}

void addPictures(std::vector<CardFile>& files) {
    Folder folder(files, "PICTURES");
    folder.add(
        "TESTCARD.PNG", [] { return writtenByQt("png", testCard(800, 600)); }, Gap::Zeros, 4);
    folder.add("BALLOONS.PNG", byQt("png", balloons, 640, 480));
    folder.add("LAVENDER.BMP", byQt("bmp", lavenderRows, 640, 480));
    folder.add("MEADOW.BMP", byQt("bmp", meadow, 321, 240), Gap::Noise, 3);
    folder.add("SUNSET.GIF", [] {
        return encoded({"gif", "gif", "pal8", nullptr, "loop=0"}, sunset(12, 240, 180));
    });
    folder.add("COSMOS.GIF", [] { return encoded({"gif", "gif", "pal8"}, {painted(pinkCosmos, 480, 360)}); });
    folder.add("LAKE.TIF", byLibav("tiff", "rgb24", alpineLake, 640, 480, "compression_algo=raw"));
    folder.add("AURORA.TIFF", byQt("tiff", aurora, 480, 360));
    folder.add("ROCKS.DNG", by(dngFile, alpineLake, 640, 480), Gap::Zeros, 2);
    folder.add("BAY.PPM", byQt("ppm", lilacBay, 400, 300));
    folder.add("FOREST.PGM", byQt("pgm", mistyForest, 400, 300));
    folder.add("DAISIES.TGA", byLibav("targa", "bgr24", daisies, 320, 240, "rle=0"));
    folder.add("BALLOONS.PCX", byLibav("pcx", "rgb24", balloons, 320, 240));
    folder.add("LAVENDER.SGI", byLibav("sgi", "rgb24", lavenderRows, 320, 240));
    folder.add("COSMOS.PSD", [] { return photoshopFile(painted(pinkCosmos, 400, 300), false); });
    folder.add("FLOWER.ICO", [] {
        return iconFile({painted(sunflower, 64, 64), painted(sunflower, 32, 32)}, false);
    });
    folder.add("AUTUMN.XPM", [] {
        return writtenByQt("xpm", painted(autumnLake, 160, 120).convertToFormat(QImage::Format_Indexed8));
    });
    folder.add("SAIL.WEBP", [] { return writtenByQt("webp", sunsetAt(400, 300, 0.75, 0.5), 95); });
    folder.add("RIDGES.QOI", byLibav("qoi", "rgb24", pinkRidges, 400, 300));
    folder.add("CITY.MPO", [] {
        const QByteArray jpeg = writtenByQt("jpg", painted(citySkyline, 640, 480), 85);
        return mpoFile(jpeg, jpeg);
    });
    folder.add("NIGHT.ICNS", byQt("icns", starryNight, 256, 256));
    folder.add(
        "SUNSET.APNG",
        [] {
            return encoded({"apng", "apng", "rgb24", nullptr, "plays=0"}, sunset(12, 240, 180))
                .remove(33, 21);  // without pHYs, which would stand before the mark of an animation
        },
        Gap::Noise, 2);
    folder.add("DAISY.CUR", [] { return iconFile({painted(daisies, 32, 32)}, true); });
    folder.add("DAISIES.PSB", [] { return photoshopFile(painted(daisies, 200, 150), true); });
    folder.add("RIDGES.PBM", byQt("pbm", pinkRidges, 400, 300));
    folder.add("BAY.PAM", byLibav("pam", "rgb24", lilacBay, 200, 150));
    // The bottom row comes first, which libav leaves to its caller.
    folder.add("ROCKS.PFM",
               [] { return encodedPicture("pfm", "gbrpf32le", painted(alpineLake, 160, 120).mirrored()); });
    folder.add("AURORA.HDR", by(radianceFile, aurora, 200, 150));
    folder.add("NIGHT.FITS", byLibav("fits", "gray", starryNight, 240, 180), Gap::Zeros, 1);
    folder.add("MEADOW.RAS", byLibav("sunrast", "bgr24", meadow, 200, 150, "rle=0"));
    folder.add("LAVENDER.DDS", by(ddsFile, lavenderRows, 128, 128));
    folder.add("LAKE.KTX", by(ktxFile, alpineLake, 128, 128));
    folder.add("BALLOONS.LBM", by(lbmFile, balloons, 160, 128));
    folder.add("COSMOS.DPX", byLibav("dpx", "rgb24", pinkCosmos, 200, 150));
    folder.add("AUTUMN.MIFF", by(miffFile, autumnLake, 160, 120));
    folder.add("SAIL.JNG", [] { return jngFile(sunsetAt(400, 300, 0.6, 0.35)); });
    folder.add("LAKE.JP2", byLibav("jpeg2000", "rgb24", alpineLake, 320, 240, "format=jp2"));
    folder.add("AURORA.EXR", byLibav("exr", "gbrpf32le", aurora, 160, 120));
    folder.add("BAY.XWD", byLibav("xwd", "rgb24", lilacBay, 160, 120));
    folder.add("FOREST.DCX", [] {
        return dcxFile({byLibav("pcx", "rgb24", mistyForest, 160, 120)(),
                        byLibav("pcx", "rgb24", balloons, 160, 120)()});
    });
}

bool hasPhotoAtSector(const QByteArray& movie) {
    for (qsizetype at = 0; at < movie.size(); at += 512)
        if (QByteArrayView(movie).sliced(at).startsWith("\xFF\xD8\xFF"))
            return true;
    return false;
}

void addMovies(std::vector<CardFile>& files) {
    Folder folder(files, "VIDEO");
    // The sun goes down, in motion JPEG; only a boat moves, so that most of each H.264 frame is as in the one
    // before.
    const auto sunsetMovie = [](const char* container, const char* options) {
        static const std::vector<QImage> kFrames = sunset(50, 480, 320);
        // Finer, till no frame begins a sector by chance, where a search would find it as a photo of its own.
        for (int quality = 472;; --quality) {
            const QByteArray fine = "flags=+qscale:global_quality=" + QByteArray::number(quality);
            const QByteArray movie = encoded({container, "mjpeg", "yuvj420p", "pcm_s16le", options, fine},
                                             kFrames, playTune(22050, 5));
            if (!hasPhotoAtSector(movie))
                return movie;
        }
    };
    const auto boat = [](const char* container, const char* options = "", const char* codec = "libx264",
                         const char* coding = "preset=veryfast:crf=12") {
        return [=] {
            static const std::vector<QImage> kFrames = sunset(30, 480, 320, 0.67);
            return encoded({container, codec, "yuv420p", nullptr, options, coding}, kFrames);
        };
    };
    folder.add(
        "MOV_0001.MOV", [=] { return sunsetMovie("mov", "movflags=faststart"); }, Gap::Zeros, 6);
    folder.add("MOV_0002.AVI", [=] { return sunsetMovie("avi", ""); });
    folder.add("MOV_0003.MP4", boat("mp4"), Gap::Noise, 7);
    folder.add("MOV_0004.3GP", boat("3gp"));
    folder.add("MOV_0005.M4V", boat("ipod", "movflags=faststart"));
    folder.add("MOV_0006.MTS", boat("mpegts", "mpegts_m2ts_mode=1"), Gap::Zeros, 4);
    folder.add("MOV_0007.TS", boat("mpegts"));
    folder.add("MOV_0008.MKV", boat("matroska"));
    folder.add("MOV_0009.FLV", boat("flv"), Gap::Noise, 1);
    folder.add("MOV_0010.3G2", boat("3g2"));
    folder.add("MOV_0011.F4V", boat("f4v"));
    folder.add("MOV_0014.WEBM", boat("webm", "", "libvpx", "b=1M"));
    folder.add("MOV_0015.IVF", boat("ivf", "", "libvpx", "b=1M"));
    folder.add("MOV_0016.WMV", boat("asf", "", "wmv2", "b=1M"));
    folder.add("MOV_0012.H264", boat("h264"), Gap::Zeros, 1);
    folder.add("MOV_0013.Y4M", [] {
        return encoded({"yuv4mpegpipe", "wrapped_avframe", "yuv444p"}, sunset(3, 96, 72));
    });
}

void addSounds(std::vector<CardFile>& files) {
    Folder folder(files, "MUSIC");
    const auto tune = [](const char* container, const char* codec, int rate, const char* options = "") {
        return [=] {
            return encoded({container, nullptr, nullptr, codec, options}, {}, playTune(rate, rate / 3445.0));
        };
    };
    folder.add("TUNE.WAV", tune("wav", "pcm_s16le", 22050), Gap::Zeros, 2);
    folder.add("TUNE.AU", tune("au", "pcm_s16be", 11025));
    folder.add("TUNE.AIFF", tune("aiff", "pcm_s16be", 11025));
    folder.add("TUNE.CAF", tune("caf", "pcm_s16be", 11025), Gap::Noise, 2);
    folder.add("TUNE.VOC", tune("voc", "pcm_u8", 11025));
    folder.add("TUNE.FLAC", tune("flac", "flac", 22050));
    folder.add("TUNE.OGA", tune("oga", "flac", 11025));
    folder.add("TUNE.MP3", tune("mp3", "libmp3lame", 22050), Gap::Zeros, 1);
    folder.add("TUNE.AAC", tune("adts", "aac", 22050));
    folder.add("SILENCE.AMR", [] { return amrFile(false, 150); });
    folder.add("TUNE.TTA", tune("tta", "tta", 11025));
    folder.add("TUNE.WV", tune("wv", "wavpack", 11025));
    folder.add("TUNE.OGG", tune("ogg", "libvorbis", 22050));
    folder.add("TUNE.OPUS", tune("opus", "libopus", 48000));
    folder.add("TUNE.WMA", tune("asf", "wmav2", 22050));
    folder.add("TUNE.M4A", tune("ipod", "aac", 22050));
    folder.add("TUNE.MID", midiFile);
    folder.add("TUNE.RF64", tune("wav", "pcm_s16le", 11025, "rf64=always"), Gap::Zeros, 1);
    folder.add("TUNE.W64", tune("w64", "pcm_s16le", 11025));
    folder.add("TUNE.8SVX", [] { return amigaSoundFile(playTune(11025, 3.2)); });
    folder.add("TUNE.SPH", [] { return sphereFile(playTune(11025, 3.2)); });
    folder.add("TUNE.RMI", rmiFile);
    folder.add("SILENCE.AWB", [] { return amrFile(true, 150); });
}

void addDocuments(std::vector<CardFile>& files) {
    Folder folder(files, "DOCS");
    folder.add(
        "ALBUM.PDF", [] { return pdfFile(painted(seaSunset, 640, 480)); }, Gap::Zeros, 2);
    const QHash<QByteArray, Gap> gaps{{"NOTES.DOCX", Gap::Noise}, {"BOOK.EPUB", Gap::Zeros}};
    for (const TextDocument& document : textDocuments()) {
        const Gap gap = gaps.value(document.name, Gap::None);
        folder.add(
            document.name, [&document] { return contentOf(document); }, gap, gap != Gap::None);
    }
    folder.add("PLACES.SQLITE", sqliteFile, Gap::Noise, 2);
    folder.add("PLACES.DBF", dbfFile);
    folder.add("SQUARES.NPY", numpyFile);
    folder.add("PLACES.SHP", shapeFile);
}

void addArchives(std::vector<CardFile>& files) {
    Folder folder(files, "ARCHIVES");
    const QByteArray notes = textNamed("NOTES.TXT");
    const std::vector<Member> members = {
        {"notes.txt", notes}, {"places.csv", textNamed("PLACES.CSV")}, {"track.gpx", textNamed("TRACK.GPX")}};
    const auto packed = [notes](const char* filter) {
        return [=] { return archived({{"notes.txt", notes}}, "raw", filter); };
    };
    const auto library = [members](const char* format, const char* filter = nullptr) {
        return [=] { return archived(members, format, filter); };
    };
    folder.add(
        "NOTES.ZIP", [=] { return zipFile(members); }, Gap::Zeros, 1);
    folder.add("NOTES.TAR", library("ustar"));
    folder.add("NOTES.GZ", packed("gzip"));
    folder.add("NOTES.TGZ", library("ustar", "gzip"));
    folder.add("NOTES.XZ", packed("xz"), Gap::Noise, 1);
    folder.add("NOTES.7Z", library("7zip"));
    folder.add("NOTES.CAB", [=] { return cabFile(members); });
    folder.add("NOTES.AR", library("arsvr4"));
    folder.add("NOTES.CPIO", [=] { return Bytes().raw(library("newc")()).alignTo(512); });
    folder.add("NOTES.LZ4", packed("lz4"), Gap::Zeros, 1);
    folder.add("NOTES.ZST", packed("zstd"));
    folder.add("NOTES.LZH", [=] { return lhaFile(members); });
    folder.add("NOTES.DEB", [=] {
        const QByteArray control =
            "Package: sample\nVersion: 1\nArchitecture: all\nDescription: a sample\n"
            "Maintainer: A Traveller <traveller@example.org>\n";
        return archived({{"debian-binary", "2.0\n"},
                         {"control.tar", archived({{"./control", control}}, "ustar")},
                         {"data.tar", archived(members, "ustar")}},
                        "arsvr4");
    });
    folder.add("QUIET.PCAP", pcapFile);
    folder.add("ANSWER.WASM", wasmFile, Gap::Noise, 1);
}

}  // namespace

std::vector<CardFile> cardContents() {
    std::vector<CardFile> files;
    addPhotos(files);
    addPictures(files);
    addMovies(files);
    addSounds(files);
    addDocuments(files);
    addArchives(files);
    return files;
}

}  // namespace vantor::samples
