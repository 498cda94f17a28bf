// The table of media for people.
#include <gtest/gtest.h>

#include "cli/ListMedia.h"

namespace vantor {
namespace {

class LabelledMedium : public MediaSource {
  public:
    explicit LabelledMedium(const QString& label) : m_label(label) {}
    QStringList mountedRemovableMedia() override { return {"/media/card"}; }
    QStringList localVolumes() override { return {}; }
    MediaFacts diskInfo(const QString&) override {
        return {{"DeviceIdentifier", "sdb1"}, {"VolumeName", m_label}, {"IOKitSize", 1024 * 1024}};
    }

  private:
    QString m_label;
};

TEST(ListMedia, LabelsDoNotSpeakToTheTerminal) {
    LabelledMedium source(QString::fromUtf8("A\x1b[31mB\u202eC\nD\u0152"));
    testing::internal::CaptureStdout();
    listMedia(source, false);
    const std::string shown = testing::internal::GetCapturedStdout();
    EXPECT_NE(shown.find("A\\u001b[31mB\\u202eC\\u000aD"), std::string::npos) << shown;
    EXPECT_EQ(shown.find('\x1b'), std::string::npos);
    EXPECT_NE(shown.find(QString(QChar(0x152)).toStdString()), std::string::npos) << "letters stay";
}

TEST(ListMedia, ALabelOfAMillionLettersIsCut) {
    LabelledMedium source(QString(1'000'000, u'x'));
    testing::internal::CaptureStdout();
    listMedia(source, false);
    const std::string shown = testing::internal::GetCapturedStdout();
    EXPECT_NE(shown.find(std::string(200, 'x') + "…"), std::string::npos);
    EXPECT_LT(shown.size(), 2000U);
}

}  // namespace
}  // namespace vantor
