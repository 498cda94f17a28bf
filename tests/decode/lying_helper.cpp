// A helper as a taken-over one could be: it says that it is ready and answers every request with the lie that
// it is called by.
#include <sys/socket.h>

#include <cstring>
#include <string_view>

#include "decode/DecodeProtocol.h"

using namespace vantor::decode;

int main(int argc, char** argv) {
    std::string_view lie = argc > 0 ? argv[0] : "";
    lie.remove_prefix(lie.rfind('/') + 1);
    Answer answer;
    answer.status = AnswerStatus::Ready;
    send(kHelperSocket, &answer, sizeof answer, 0);
    for (Request request; recv(kHelperSocket, &request, sizeof request, 0) > 0;) {
        answer = {};
        answer.status = lie == "status" ? static_cast<AnswerStatus>(77) : AnswerStatus::Ok;
        answer.serial = request.serial + (lie == "serial");
        answer.magic += lie == "magic";
        answer.width = lie == "width" ? request.maxWidth + 1 : lie == "nowidth" ? 0 : 1;
        answer.height = lie == "height" ? request.maxHeight + 1 : lie == "noheight" ? 0 : 1;
        send(kHelperSocket, &answer, lie == "length" ? sizeof answer - 1 : sizeof answer, 0);
    }
}
