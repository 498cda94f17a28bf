// vantor-decode: decodes carved pictures in the program's place. Started by the program only, with its
// process id as the argument and a socket as descriptor 3.
#include <malloc.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QThreadPool>
#include <cstdio>
#include <cstdlib>

#include "decode/helper/Cage.h"
#include "decode/helper/CagedStart.h"
#include "decode/helper/Channel.h"
#include "decode/helper/PictureDecoder.h"

int main(int argc, char** argv) {
    using namespace vantor::decode;
    if (argc != 2) {
        std::fputs("vantor-decode is started by the program itself.\n", stderr);
        return EXIT_FAILURE;
    }
    silenceErrors();
    // Each thread of a decoder would else set room aside for itself, out of the room that is limited; and
    // what was large and is free again goes back at once.
    constexpr int kLargeBytes = 1024 * 1024;
    mallopt(M_ARENA_MAX, 1);
    mallopt(M_MMAP_THRESHOLD, kLargeBytes);
    QCoreApplication application(argc, argv);
    preparePictureDecoders();

    Channel channel(kHelperSocket);
    enterCageOrEnd(channel, argv[1]);
    // Pictures are decoded side by side by processes; a thread of the pool itself gets no others to help it.
    QThreadPool::globalInstance()->setMaxThreadCount(1);
    QThreadPool::globalInstance()->start([&channel] {
        PictureJobDecoder decoder;
        // Past every clean-up that a damaged heap could trip over.
        _exit(channel.serve(decoder) ? EXIT_SUCCESS : EXIT_FAILURE);
    });
    QThreadPool::globalInstance()->waitForDone();
    return EXIT_SUCCESS;
}
