// One sound file of each kind.
#include "samples/CardContents.h"
#include "samples/Sound.h"

namespace vantor::samples {

void addSounds(std::vector<CardFile>& files) {
    const auto add = [&files](const char* name, const QByteArray& bytes, Gap gap = Gap::None,
                              std::int64_t clusters = 0) {
        files.push_back(
            {QStringLiteral("MUSIC"), QString::fromLatin1(name), bytes, gap, clusters, Pieces::One});
    };
    const Sound tune = playTune(22050, 64);
    const Sound small = playTune(11025, 32);
    add("TUNE.WAV", wavFile(tune), Gap::Zeros, 2);
    add("TUNE.AU", auFile(small));
    add("TUNE.AIFF", aiffFile(small));
    add("TUNE.CAF", cafFile(small), Gap::Noise, 2);
    add("TUNE.VOC", vocFile(small));
    add("TUNE.FLAC", flacFile(tune));
    add("TUNE.OGA", oggFlacFile(small));
    add("SILENCE.MP3", mp3File(200), Gap::Zeros, 1);
    add("SILENCE.AAC", aacFile(200));
    add("SILENCE.AMR", amrFile(150));
    add("TUNE.MID", midiFile());
    add("TUNE.RF64", rf64File(small), Gap::Zeros, 1);
    add("TUNE.W64", w64File(small));
    add("TUNE.8SVX", amigaSoundFile(small));
    add("TUNE.SPH", sphereFile(small));
    add("TUNE.RMI", rmiFile());
    add("SILENCE.AWB", wideAmrFile(150));
}

}  // namespace vantor::samples
