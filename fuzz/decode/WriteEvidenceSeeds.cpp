// Writes evidence images for the harness to begin with.
#include <QByteArray>
#include <QString>
#include <cstdio>

#include "tests/support/EvidenceFiles.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: fuzz_evidence_seeds FOLDER\n", stderr);
        return 1;
    }
    QByteArray medium(150 * 512, '\0');
    for (qsizetype i = 0; i < medium.size(); ++i) {
        medium[i] = static_cast<char>(i / 512 % 2 == 0 ? i / 90 : 0);
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const auto packed = vantor::writeEvidence(folder, QStringLiteral("packed"), medium, {true, 0, {}});
    const auto lost = vantor::writeEvidence(folder, QStringLiteral("lost"), medium, {true, 0, {70, 75}});
    const auto plain =
        vantor::writeEvidence(folder, QStringLiteral("plain"), medium.first(5120), {false, 0, {}});
    return packed.isEmpty() || lost.isEmpty() || plain.isEmpty() ? 1 : 0;
}
